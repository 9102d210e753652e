// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QPointer>
#include <QWidget>

namespace devhost {

/// What the desk adds to a card: an edge, without which a light card could not be told from the desk, and a
/// veil while the card is disabled. Lies over the card, lets every click through, goes where the card goes,
/// and deletes itself when the card is gone.
class CardSurround final : public QWidget
{
    Q_OBJECT

public:
    /// Beside @p card, which has a parent.
    explicit CardSurround(QWidget *card);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();

    QPointer<QWidget> m_card;
};

} // namespace devhost
