// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrylist.h"

#include "cardfonts.h"

#include <algorithm>

namespace devhost {

int EntryList::positionAfter(int turn) const
{
    int position = size();
    while (position > 0 && at(position - 1).turn > turn) {
        --position;
    }
    return position;
}

int EntryList::saidPosition(int turn) const
{
    for (int i = positionAfter(turn) - 1; i >= 0 && at(i).turn == turn; --i) {
        if (at(i).role == Bubble::Said) {
            return i;
        }
    }
    return -1;
}

int EntryList::positionOfCardWith(const QWidget &widget) const
{
    const auto found = std::find_if(cbegin(), cend(), [&widget](const ConversationEntry &entry) {
        return entry.card != nullptr && (entry.card == &widget || entry.card->isAncestorOf(&widget));
    });
    return found == cend() ? -1 : int(found - cbegin());
}

int EntryList::positionOfSerial(int serial) const
{
    const auto found = std::find_if(
        cbegin(), cend(), [serial](const ConversationEntry &entry) { return entry.serial == serial; });
    return found == cend() ? -1 : int(found - cbegin());
}

void EntryList::measure(int first, int columnWidth, const QFont &font, int waitingTurn, int dotsHeight)
{
    const int dotsAfter = waitingTurn == 0 ? -1 : positionAfter(waitingTurn) - 1;
    for (int i = first; i < size(); ++i) {
        ConversationEntry &entry = (*this)[i];
        entry.measure(columnWidth, font);
        const int above = i == 0 ? Margin : at(i - 1).bottom() + Gap;
        entry.top = above + (i > 0 && i - 1 == dotsAfter ? dotsHeight + Gap : 0);
    }
}

void EntryList::scaleCards(qreal scale) const
{
    for (const ConversationEntry &entry : *this) {
        if (entry.hasLiveCard()) {
            scaleCardFonts(*entry.card, scale);
        }
    }
}

} // namespace devhost
