// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardpanel.h"

#include "card/cardmeasures.h"
#include "card/cardtheme.h"

#include <QPainter>
#include <QWidget>

namespace {
constexpr int FocusFrameWidth = 4;
} // namespace

void CardPanel::paint(QWidget &card, Frame frame)
{
    QPainter painter(&card);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(CardTheme::cardGround());
    if (frame == Frame::Focus) {
        QPen pen = painter.pen();
        pen.setColor(CardTheme::focus());
        pen.setWidth(FocusFrameWidth);
        painter.setPen(pen);
    } else {
        painter.setPen(Qt::transparent);
    }
    constexpr qreal radius = CardMeasures::CornerRadius;
    painter.drawRoundedRect(0, 0, card.width(), card.height(), radius, radius, Qt::AbsoluteSize);
}
