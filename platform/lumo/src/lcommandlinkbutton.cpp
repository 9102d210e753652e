// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lcommandlinkbutton.h"

#include "lumo/plaintooltip.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QToolTip>

namespace {
constexpr int HorizontalPadding = 2;
constexpr int VerticalPadding = 4;
constexpr qreal FocusFrameRadius = 4;
} // namespace

LCommandLinkButton::LCommandLinkButton(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

QSize LCommandLinkButton::sizeHint() const
{
    const QSize textSize = fontMetrics().size(Qt::TextShowMnemonic, text());
    return textSize + QSize(2 * HorizontalPadding, 2 * VerticalPadding);
}

bool LCommandLinkButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shownText() != text()) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), plainToolTip(text()), this);
        return true;
    }
    return QPushButton::event(event);
}

void LCommandLinkButton::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), FocusFrameRadius,
                                FocusFrameRadius);
    }
    if (isEnabled() && option.state.testFlag(QStyle::State_MouseOver)) {
        QFont underlined = font();
        underlined.setUnderline(true);
        painter.setFont(underlined);
    }
    const QRect room = rect().adjusted(HorizontalPadding, 0, -HorizontalPadding, 0);
    style()->drawItemText(&painter, room, Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(),
                          shownText(), QPalette::ButtonText);
}

QString LCommandLinkButton::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, width() - 2 * HorizontalPadding,
                                    Qt::TextShowMnemonic);
}
