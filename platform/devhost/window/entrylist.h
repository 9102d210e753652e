// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conversationentry.h"

#include <QVector>

namespace devhost {

/// The entries of a conversation from top to bottom. A turn's entries stay together.
class EntryList : public QVector<ConversationEntry>
{
public:
    /// The position for the next entry of @p turn.
    int positionAfter(int turn) const;
    /// The entry that began @p turn; -1 when it is unknown.
    int saidPosition(int turn) const;
    /// The entry whose card is or contains @p widget; -1 when there is none.
    int positionOfCardWith(const QWidget &widget) const;
    int positionOfSerial(int serial) const;

    /// Lays out the entries from @p first on, leaving room for dots of @p dotsHeight below @p waitingTurn, 0
    /// for none.
    void measure(int first, int columnWidth, const QFont &font, int waitingTurn, int dotsHeight);

    /// Scales the texts on the live cards.
    void scaleCards(qreal scale) const;

    static constexpr int Margin = 16; ///< above the first and below the last
    static constexpr int Gap = 10;    ///< between two

    /// Replaces the live cards above the newest @p kept by records, except those that @p isNeeded.
    template <typename Predicate>
    void letOldCardsGo(int kept, Predicate isNeeded)
    {
        int alive = 0;
        for (int i = size() - 1; i >= 0; --i) {
            if (at(i).hasLiveCard() && ++alive > kept && !isNeeded(*at(i).card)) {
                (*this)[i].letCardGo();
            }
        }
    }
};

} // namespace devhost
