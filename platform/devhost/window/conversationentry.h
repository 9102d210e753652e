// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "bubble.h"
#include "cardrecord.h"

#include <QPointer>
#include <QSize>
#include <QString>
#include <QWidget>

namespace devhost {

/// One text of a conversation with its card and their places. The view owns bubble and card.
struct ConversationEntry
{
    ConversationEntry() = default;
    ConversationEntry(int turnId, Bubble::Role saidAs, const QString &said)
        : turn(turnId)
        , role(saidAs)
        , text(said)
    {
    }

    static constexpr int CardGap = 6; ///< between a text and its card

    int serial = 0; ///< never used twice
    int turn = 0;
    Bubble::Role role = Bubble::Said;
    QString text;
    bool isQueued = false;
    QPointer<QWidget> card;   ///< a live one, or while in sight a picture of a released one
    CardRecord record;        ///< of a released card
    Bubble *bubble = nullptr; ///< while in sight
    bool isSized = false;
    int naturalWidth = 0;
    QSize textSize; ///< empty without a text
    QSize cardSize; ///< empty without a card
    int top = 0;

    int height() const;
    int bottom() const { return top + height(); }
    bool hasLiveCard() const { return card != nullptr && record.isEmpty(); }
    bool hasCard() const { return card != nullptr || !record.isEmpty(); }
    /// Replaces the card by a record of it.
    void letCardGo();

    /// Sizes text and card for a column of @p columnWidth pixels.
    void measure(int columnWidth, const QFont &font);

private:
    void measureCard(int columnWidth);
};

} // namespace devhost
