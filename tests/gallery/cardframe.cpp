// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardframe.h"

namespace {
constexpr int Margin = 16;
constexpr int LeastCardHeight = 24; ///< keeps an empty card visible
constexpr int GroundFactor = 108;
} // namespace

CardFrame::CardFrame(std::unique_ptr<QWidget> card, int cardWidth)
    : m_card(card.release())
    , m_cardWidth(cardWidth)
{
    // Darker than a window, so that the translucent card stands out.
    QPalette ground = palette();
    ground.setColor(QPalette::Window, ground.color(QPalette::Window).darker(GroundFactor));
    setPalette(ground);
    setAutoFillBackground(true);
    m_card->setParent(this);
    fit();
}

void CardFrame::fit()
{
    const int height = qMax(LeastCardHeight, m_card->sizeHint().height());
    m_card->setGeometry(Margin, Margin, m_cardWidth, height);
    setFixedSize(m_cardWidth + 2 * Margin, height + 2 * Margin);
}
