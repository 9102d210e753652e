// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QPushButton;
class QWidget;
QT_END_NAMESPACE

/**
 * Shows, for as long as it exists, that a card waits for the contacts application: sets the wait cursor and
 * repaints the card immediately, because nothing is painted while a request blocks. Processes no events. The
 * card may be deleted meanwhile.
 */
class CardWait
{
public:
    /// @p button is the pressed one, whose text then says that it waits; null if it leaves the card.
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
