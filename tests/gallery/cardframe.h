// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QWidget>

#include <memory>

/// A piece of a conversation view with one card in it, as wide as the host shows it.
class CardFrame : public QWidget
{
    Q_OBJECT

public:
    static constexpr int DefaultCardWidth = 360;

    explicit CardFrame(std::unique_ptr<QWidget> card, int cardWidth = DefaultCardWidth);

    QWidget &card() const { return *m_card; }
    /// Gives the card the height that it wants by now.
    void fit();

private:
    QWidget *m_card;
    const int m_cardWidth;
};
