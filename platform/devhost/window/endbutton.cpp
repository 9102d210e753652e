// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "endbutton.h"

#include <QPainter>

namespace devhost {

namespace {

constexpr int Diameter = 40;

} // namespace

EndButton::EndButton(QWidget *parent) : ViewButton(tr("Back to the latest turn"), Diameter, parent)
{
    setFocusPolicy(Qt::TabFocus); // a click hides the button, which would move the focus
}

void EndButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::Button);
    if (isDown()) {
        ground = ground.darker(PressedFactor);
    } else if (underMouse()) {
        ground = ground.darker(HoverFactor);
    }
    painter.setBrush(ground);
    const bool isMarked = hasFocus();
    painter.setPen(QPen(palette().color(isMarked ? QPalette::Highlight : QPalette::Mid), isMarked ? 2 : 1));
    painter.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
    painter.setPen(
        QPen(palette().color(QPalette::ButtonText), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF middle = QRectF(rect()).center();
    const auto at = [&middle](qreal x, qreal y) {
        return middle + QPointF(x, y);
    };
    painter.drawLine(at(0, -7), at(0, 7));
    painter.drawPolyline(QPolygonF({at(-6, 1), at(0, 7), at(6, 1)}));
}

} // namespace devhost
