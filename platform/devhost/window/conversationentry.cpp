// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationentry.h"

namespace devhost {

namespace {

/// A candidate's row plus the card's margins, so that rows and the button below them are equally wide.
constexpr int PreferredCardWidth = 350;
/// Share of the column's width; the rest shows who speaks.
constexpr double WidestBubble = 0.78;

} // namespace

int ConversationEntry::height() const
{
    return textSize.height() + (textSize.isEmpty() || cardSize.isEmpty() ? 0 : CardGap) + cardSize.height();
}

void ConversationEntry::measure(int columnWidth, const QFont &font)
{
    const int widest = int(columnWidth * WidestBubble);
    // Most texts are short: their size does not depend on the window's width.
    if (!isSized || naturalWidth > widest || textSize.width() < naturalWidth) {
        textSize = text.isEmpty() ? QSize() : Bubble::sizeFor(text, font, widest, naturalWidth);
        isSized = true;
    }
    measureCard(columnWidth);
}

void ConversationEntry::letCardGo()
{
    record = CardRecord(*card);
    // Deferred: one of the card's own signals may have led here.
    card->deleteLater();
    card = nullptr;
}

void ConversationEntry::measureCard(int columnWidth)
{
    if (!record.isEmpty()) {
        return; // a picture keeps its size
    }
    if (card == nullptr) {
        cardSize = QSize();
        return;
    }
    const QSize wish = card->sizeHint().expandedTo(card->minimumSizeHint());
    const int width = qMin(qMax(wish.width(), PreferredCardWidth), columnWidth);
    const int cardHeight = card->hasHeightForWidth() ? card->heightForWidth(width) : wish.height();
    cardSize =
        QSize(width, qMax(cardHeight, 1)).boundedTo(card->maximumSize()).expandedTo(card->minimumSize());
}

} // namespace devhost
