// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QPointer>
#include <QWidget>

namespace devhost {

/// The desk's overlay on a card: an edge, without which a light card would merge with the desk, and a veil
/// while the card is disabled. Passes every click through, follows the card, and deletes itself with it.
class CardSurround final : public QWidget
{
    Q_OBJECT

public:
    /// Becomes a sibling of @p card, which must have a parent.
    explicit CardSurround(QWidget *card);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();

    QPointer<QWidget> m_card;
};

} // namespace devhost
