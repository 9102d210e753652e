// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "turnbutton.h"

#include <QPainter>

namespace devhost {

namespace {

constexpr int Extent = 28;
constexpr int Dots = 3;
constexpr qreal DotRadius = 1.6;
constexpr qreal DotDistance = 6;
constexpr qreal PlateRadius = 8;

} // namespace

TurnButton::TurnButton(QWidget *parent) : ViewButton(tr("Menu of this turn"), Extent, parent)
{
    setFocusPolicy(Qt::NoFocus);
}

void TurnButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool isMarked = underMouse() || isDown();
    if (isMarked) {
        const QColor plate = palette().color(QPalette::Button);
        painter.setBrush(isDown() ? plate.darker(PressedFactor) : plate);
        painter.drawRoundedRect(rect(), PlateRadius, PlateRadius);
    }
    painter.setBrush(palette().color(isMarked ? QPalette::ButtonText : QPalette::PlaceholderText));
    for (int i = 0; i < Dots; ++i) {
        painter.drawEllipse(QRectF(rect()).center() + QPointF((i - 1) * DotDistance, 0), DotRadius,
                            DotRadius);
    }
}

} // namespace devhost
