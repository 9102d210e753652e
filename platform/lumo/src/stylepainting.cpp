// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "stylepainting.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr qreal Radius = 8;
constexpr qreal RingWidth = 2;
constexpr qreal CheckRadius = 4;
constexpr qreal RoundEdge = 1.5; ///< a thinner circle is faint where it is smoothed
constexpr qreal DotInset = 0.32; ///< of a radio button's width
constexpr qreal SignWidth = 1.5;
constexpr qreal SignExtent = 4; ///< half the width of a sign
constexpr int HoverFactor = 106;
constexpr int PressedFactor = 114;
constexpr int DisabledAlpha = 90;
constexpr qreal HeaderInset = 6;
constexpr int TabLine = 3;

class PainterState
{
public:
    explicit PainterState(QPainter &painter) : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~PainterState() { m_painter.restore(); }
    Q_DISABLE_COPY(PainterState)

private:
    QPainter &m_painter;
};

bool is(const QStyleOption &option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

QColor groundOf(const QStyleOption &option, QPalette::ColorRole role)
{
    QColor color = option.palette.color(role);
    if (!is(option, QStyle::State_Enabled)) {
        color.setAlpha(DisabledAlpha);
    } else if (is(option, QStyle::State_Sunken)) {
        color = color.darker(PressedFactor);
    } else if (is(option, QStyle::State_MouseOver)) {
        color = color.darker(HoverFactor);
    }
    return color;
}

QPen edgePen(const QStyleOption &option)
{
    QColor edge = option.palette.color(QPalette::Mid);
    edge.setAlpha(is(option, QStyle::State_Enabled) ? edge.alpha() : DisabledAlpha);
    return QPen(edge, 1);
}

/// Sets brush and pen for a check box or radio button.
void setMark(QPainter &painter, const QStyleOption &option, bool checked, qreal edgeWidth)
{
    QPen edge = edgePen(option);
    edge.setWidthF(edgeWidth);
    painter.setBrush(groundOf(option, checked ? QPalette::Highlight : QPalette::Base));
    painter.setPen(checked ? QPen(Qt::NoPen) : edge);
}

/// Insets by half a pixel, so that a line of one pixel covers one row of pixels.
QRectF inside(const QRect &rect, qreal lineWidth)
{
    const qreal inset = lineWidth / 2;
    return QRectF(rect).adjusted(inset, inset, -inset, -inset);
}

} // namespace

void StylePainting::button(QPainter &painter, const QStyleOption &option, bool flat)
{
    const bool touched = is(option, QStyle::State_MouseOver) || is(option, QStyle::State_Sunken);
    if (flat && !touched) {
        return;
    }
    const PainterState state(painter);
    painter.setBrush(groundOf(option, QPalette::Button));
    // The accent colour stands out without an edge.
    const bool isAccent = option.palette.color(QPalette::Button) == option.palette.color(QPalette::Highlight);
    painter.setPen(flat || isAccent ? QPen(Qt::NoPen) : edgePen(option));
    painter.drawRoundedRect(flat || isAccent ? QRectF(option.rect) : inside(option.rect, 1), Radius, Radius);
}

void StylePainting::field(QPainter &painter, const QStyleOption &option)
{
    const PainterState state(painter);
    painter.setBrush(groundOf(option, QPalette::Base));
    painter.setPen(edgePen(option));
    painter.drawRoundedRect(inside(option.rect, 1), Radius, Radius);
}

void StylePainting::frame(QPainter &painter, const QStyleOption &option)
{
    const PainterState state(painter);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(edgePen(option));
    painter.drawRect(inside(option.rect, 1));
}

void StylePainting::headerSection(QPainter &painter, const QStyleOption &option, bool isLast)
{
    const PainterState state(painter);
    painter.fillRect(option.rect, groundOf(option, QPalette::Window));
    const QRectF rect = inside(option.rect, 1);
    painter.setPen(edgePen(option));
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    if (!isLast) {
        // The handle that resizes the column.
        painter.drawLine(rect.topRight() + QPointF(0, HeaderInset),
                         rect.bottomRight() - QPointF(0, HeaderInset));
    }
}

void StylePainting::tab(QPainter &painter, const QStyleOption &option)
{
    const PainterState state(painter);
    if (is(option, QStyle::State_Selected)) {
        painter.fillRect(option.rect, option.palette.color(QPalette::Base));
        const QRect line(option.rect.left(), option.rect.bottom() - TabLine + 1, option.rect.width(),
                         TabLine);
        painter.fillRect(line, option.palette.color(QPalette::Link));
    } else if (is(option, QStyle::State_MouseOver)) {
        painter.fillRect(option.rect, option.palette.color(QPalette::Button));
    }
}

void StylePainting::focusRing(QPainter &painter, const QStyleOption &option)
{
    const PainterState state(painter);
    // On an accent-coloured plate a ring in that colour would be invisible, and so might any other colour at
    // the edge, depending on the surroundings.
    const bool onAccent = option.palette.color(QPalette::Button) == option.palette.color(QPalette::Highlight);
    const auto role = onAccent ? QPalette::HighlightedText : QPalette::Highlight;
    const qreal inset = onAccent ? RingWidth : 0;
    const QRectF ring = inside(option.rect, RingWidth).adjusted(inset, inset, -inset, -inset);
    const qreal radius = Radius - RingWidth / 2 - inset;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(role), RingWidth));
    painter.drawRoundedRect(ring, radius, radius);
}

void StylePainting::checkMark(QPainter &painter, const QStyleOption &option)
{
    const PainterState state(painter);
    const QRectF box = inside(option.rect, 1);
    const bool checked = is(option, QStyle::State_On);
    setMark(painter, option, checked, 1);
    painter.drawRoundedRect(box, CheckRadius, CheckRadius);
    if (!checked) {
        return;
    }
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), SignWidth, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    painter.drawPolyline(QPolygonF({at(0.25, 0.53), at(0.44, 0.72), at(0.76, 0.32)}));
}

void StylePainting::radioMark(QPainter &painter, const QStyleOption &option)
{
    const PainterState state(painter);
    const QRectF circle = inside(option.rect, RoundEdge);
    const bool checked = is(option, QStyle::State_On);
    setMark(painter, option, checked, RoundEdge);
    painter.drawEllipse(circle);
    if (checked) {
        const qreal inset = circle.width() * DotInset;
        painter.setBrush(option.palette.color(QPalette::HighlightedText));
        painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
    }
}

void StylePainting::sign(QPainter &painter, const QStyleOption &option, const QRect &room, Sign sign,
                         bool enabled)
{
    const PainterState state(painter);
    const auto group = enabled ? QPalette::Active : QPalette::Disabled;
    painter.setPen(QPen(option.palette.color(group, QPalette::Text), SignWidth, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    const QPointF middle = QRectF(room).center();
    const auto at = [&middle](qreal x, qreal y) {
        return middle + QPointF(x, y) * SignExtent;
    };
    switch (sign) {
    case Sign::Up:
        painter.drawPolyline(QPolygonF({at(-1, 0.5), at(0, -0.5), at(1, 0.5)}));
        break;
    case Sign::Down:
        painter.drawPolyline(QPolygonF({at(-1, -0.5), at(0, 0.5), at(1, -0.5)}));
        break;
    case Sign::Plus:
        painter.drawLine(at(0, -1), at(0, 1));
        painter.drawLine(at(-1, 0), at(1, 0));
        break;
    case Sign::Minus:
        painter.drawLine(at(-1, 0), at(1, 0));
        break;
    }
}
