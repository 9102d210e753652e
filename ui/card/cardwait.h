// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QPushButton;
class QWidget;
QT_END_NAMESPACE

/**
 * Shows that a card waits for the contacts application, from its construction to its end: the cursor is the
 * one for waiting, and the card is painted at once as it stands, because nothing is painted while a request
 * blocks. No event is processed. The card may be deleted meanwhile.
 */
class CardWait
{
public:
    /// @p button is the pressed one if it stays on the card while the request runs; it says that it waits.
    explicit CardWait(QWidget &card, QPushButton *button = nullptr);
    ~CardWait();

    /// Waits on @p card while @p request runs, and returns its result.
    template <typename Request>
    static int during(QWidget &card, QPushButton *button, const Request &request)
    {
        const CardWait wait(card, button);
        return request();
    }

private:
    Q_DISABLE_COPY(CardWait)
};
