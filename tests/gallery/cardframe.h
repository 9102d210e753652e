// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QWidget>

#include <memory>

/// A piece of a conversation view holding one card at the width the host gives it.
class CardFrame : public QWidget
{
    Q_OBJECT

public:
    static constexpr int DefaultCardWidth = 360;

    explicit CardFrame(std::unique_ptr<QWidget> card, int cardWidth = DefaultCardWidth);

    QWidget &card() const { return *m_card; }
    /// Resizes the card to the height it currently wants.
    void fit();

private:
    QWidget *m_card;
    const int m_cardWidth;
};
