// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lcommandlinkbutton.h"

#include "lumo/lfontsizemanager.h"
#include "lumo/plaintooltip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QToolTip>

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
    const QFont textFont = shownFont();
    const QRect room = rect().adjusted(HorizontalPadding, 0, -HorizontalPadding, 0);

    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), FocusFrameRadius,
                                FocusFrameRadius);
    }
    QFont painted = textFont;
    painted.setUnderline(isEnabled() && option.state.testFlag(QStyle::State_MouseOver));
    painter.setFont(painted);
    style()->drawItemText(&painter, room, Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(),
                          shownText(), QPalette::ButtonText);
}

QFont LCommandLinkButton::shownFont() const
{
    const int room = width() - 2 * HorizontalPadding;
    const int smallest = LFontSizeManager::instance()->fontPixelSize(LFontSizeManager::T10);
    QFont shown = font();
    int pixelSize = fontInfo().pixelSize();
    while (pixelSize > smallest && QFontMetrics(shown).size(Qt::TextShowMnemonic, text()).width() > room) {
        shown.setPixelSize(--pixelSize);
    }
    return shown;
}

QString LCommandLinkButton::shownText() const
{
    return QFontMetrics(shownFont())
        .elidedText(text(), Qt::ElideRight, width() - 2 * HorizontalPadding, Qt::TextShowMnemonic);
}
