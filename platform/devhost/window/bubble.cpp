// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bubble.h"

#include "turnbutton.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace devhost {

namespace {

constexpr int HorizontalPadding = 14;
constexpr int VerticalPadding = 9;
constexpr qreal Radius = 12;
constexpr qreal RingWidth = 2;
constexpr qreal RingInset = 2;
constexpr int ButtonGap = 4;
constexpr qreal LineSpacing = 1.15;
constexpr int Unbounded = 1 << 20;

/// Breaks @p layout into lines of @p width and returns their extent.
QSizeF breakLines(QTextLayout &layout, qreal width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    QSizeF extent;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, extent.height()));
        extent.rheight() += line.height() * LineSpacing;
        extent.setWidth(qMax(extent.width(), line.naturalTextWidth()));
    }
    layout.endLayout();
    return extent;
}

QString layoutText(QString text)
{
    return text.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
}

} // namespace

Bubble::Bubble(QWidget *parent) : QWidget(parent), m_button(new TurnButton(parent))
{
    setCursor(Qt::PointingHandCursor);
    m_button->hide();
    connect(m_button, &TurnButton::clicked, this,
            [this] { Q_EMIT menuWanted(m_button->mapToGlobal(m_button->rect().bottomLeft())); });
}

void Bubble::show(Role role, const QString &text, bool isDimmed)
{
    m_role = role;
    m_text = text;
    m_isDimmed = isDimmed;
    setAccessibleName(text);
    update();
    QWidget::show();
    placeButton();
    m_button->show();
}

void Bubble::setCurrent(bool isCurrent)
{
    if (m_isCurrent != isCurrent) {
        m_isCurrent = isCurrent;
        update();
    }
}

QSize Bubble::sizeFor(const QString &text, const QFont &font, int maximumWidth, int &naturalWidth)
{
    QTextLayout layout(layoutText(text), font);
    QSizeF extent = breakLines(layout, Unbounded);
    const auto padded = [](qreal width) {
        return int(std::ceil(width)) + 2 * HorizontalPadding;
    };
    naturalWidth = padded(extent.width());
    if (naturalWidth > maximumWidth) {
        extent = breakLines(layout, qMax(1, maximumWidth - 2 * HorizontalPadding));
    }
    return {qMin(padded(extent.width()), maximumWidth),
            int(std::ceil(extent.height())) + 2 * VerticalPadding};
}

void Bubble::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isSaid = m_role == Said;
    if (m_isDimmed) {
        painter.setOpacity(0.55);
    }
    if (m_role == Notice) {
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(Qt::NoBrush);
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().brush(isSaid ? QPalette::Highlight : QPalette::Base));
    }
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    if (m_isCurrent) {
        // On the accent colour the ring takes the text's colour.
        painter.setPen(
            QPen(palette().color(isSaid ? QPalette::HighlightedText : QPalette::Highlight), RingWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(RingInset, RingInset, -RingInset, -RingInset),
                                Radius - RingInset, Radius - RingInset);
    }
    painter.setPen(palette().color(isSaid ? QPalette::HighlightedText : QPalette::Text));
    QTextLayout layout(layoutText(m_text), font());
    breakLines(layout, width() - 2 * HorizontalPadding + 1);
    layout.draw(&painter, QPointF(HorizontalPadding, VerticalPadding));
}

void Bubble::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        Q_EMIT clicked();
    }
}

void Bubble::contextMenuEvent(QContextMenuEvent *event)
{
    Q_EMIT menuWanted(event->globalPos());
}

void Bubble::moveEvent(QMoveEvent *)
{
    placeButton();
}

void Bubble::resizeEvent(QResizeEvent *)
{
    placeButton();
}

void Bubble::hideEvent(QHideEvent *)
{
    // Both come and go with the window.
    if (isHidden()) {
        m_button->hide();
    }
}

void Bubble::placeButton()
{
    const int x = m_role == Said ? geometry().left() - ButtonGap - m_button->width()
                                 : geometry().right() + 1 + ButtonGap;
    m_button->move(x, y() + (qMin(height(), 2 * m_button->height()) - m_button->height()) / 2);
}

} // namespace devhost
