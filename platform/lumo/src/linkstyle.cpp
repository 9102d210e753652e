// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "linkstyle.h"

#include "lumo/lfontsizemanager.h"
#include "lumo/plaintooltip.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QToolTip>

namespace {

constexpr int HorizontalPadding = 2;
constexpr int VerticalPadding = 4;
constexpr qreal FocusFrameRadius = 4;

struct Shown
{
    QFont font;
    QString text;
};

/// The text in the largest font in which it fits; elided, in the smallest one, if there is none. Measuring
/// costs more than painting, so what fits is not measured again.
Shown shown(const QString &text, const QWidget &widget)
{
    const int room = widget.width() - 2 * HorizontalPadding;
    const int smallest = LFontSizeManager::instance()->fontPixelSize(LFontSizeManager::T10);
    QFont font = widget.font();
    int pixelSize = widget.fontInfo().pixelSize();
    while (QFontMetrics(font).size(Qt::TextShowMnemonic, text).width() > room) {
        if (pixelSize <= smallest) {
            return {font, QFontMetrics(font).elidedText(text, Qt::ElideRight, room, Qt::TextShowMnemonic)};
        }
        font.setPixelSize(--pixelSize);
    }
    return {font, text};
}

} // namespace

void LinkStyle::giveTo(QAbstractButton &button)
{
    auto *style = new LinkStyle;
    style->setParent(&button);
    button.setStyle(style);
    button.installEventFilter(style);
}

void LinkStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    const auto *link = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButton && link != nullptr && widget != nullptr) {
        drawLink(*link, *painter, *widget);
    } else {
        QCommonStyle::drawControl(element, option, painter, widget);
    }
}

QSize LinkStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                  const QWidget *widget) const
{
    const auto *link = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (type != CT_PushButton || link == nullptr) {
        return QCommonStyle::sizeFromContents(type, option, contents, widget);
    }
    const QSize text = link->fontMetrics.size(Qt::TextShowMnemonic, link->text);
    return text + QSize(2 * HorizontalPadding, 2 * VerticalPadding);
}

bool LinkStyle::eventFilter(QObject *watched, QEvent *event)
{
    auto *button = qobject_cast<QAbstractButton *>(watched);
    if (event->type() != QEvent::ToolTip || button == nullptr || !button->toolTip().isEmpty()) {
        return QCommonStyle::eventFilter(watched, event);
    }
    const QString text = button->text();
    if (shown(text, *button).text == text) {
        return false;
    }
    const auto *help = static_cast<const QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), plainToolTip(text), button);
    return true;
}

void LinkStyle::drawLink(const QStyleOptionButton &option, QPainter &painter, const QWidget &widget) const
{
    painter.save();
    if (option.state.testFlag(State_HasFocus)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(option.palette.color(QPalette::Highlight));
        painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), FocusFrameRadius,
                                FocusFrameRadius);
    }
    const bool enabled = option.state.testFlag(State_Enabled);
    Shown link = shown(option.text, widget);
    link.font.setUnderline(enabled && option.state.testFlag(State_MouseOver));
    painter.setFont(link.font);
    const QRect room = option.rect.adjusted(HorizontalPadding, 0, -HorizontalPadding, 0);
    drawItemText(&painter, room, Qt::AlignCenter | Qt::TextShowMnemonic, option.palette, enabled, link.text,
                 QPalette::ButtonText);
    painter.restore();
}
