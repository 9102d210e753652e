// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardtheme.h"

#include "card/cardlabel.h"

#include <lumo/lguiapplicationhelper.h>

#include <QHash>
#include <QPainter>
#include <QVariant>
#include <QWidget>

namespace {

constexpr auto AlphaProperty = "cardTextAlpha";

constexpr int ChipGray = 200;
/// How much of the chip may show through a text on it.
constexpr qreal MostSeenThroughText = 0.25;
constexpr int MostCoats = 5;
/// Below this brightness (of 255), text is illegible on a dark background.
constexpr int DarkestOnDark = 64;

void applyText(QWidget &widget, int alpha)
{
    QPalette palette = widget.palette();
    palette.setBrush(QPalette::All, QPalette::WindowText, CardTheme::text(alpha));
    widget.setPalette(palette);
}

} // namespace

bool CardTheme::isLight()
{
    // The number, because toolkits name it differently.
    return static_cast<int>(LGuiApplicationHelper::instance()->themeType()) == 1;
}

bool CardTheme::isDark()
{
    return !isLight();
}

QColor CardTheme::text(int alpha)
{
    QColor color = isLight() ? Qt::black : Qt::white;
    color.setAlpha(alpha);
    return color;
}

QPalette CardTheme::textPalette(int alpha)
{
    static QHash<QRgb, QPalette> palettes;
    const QColor color = text(alpha);
    auto palette = palettes.find(color.rgba());
    if (palette == palettes.end()) {
        palette = palettes.insert(color.rgba(), QPalette());
        palette->setBrush(QPalette::All, QPalette::WindowText, color);
    }
    return *palette;
}

void CardTheme::setText(QWidget &widget, int alpha)
{
    widget.setProperty(AlphaProperty, alpha);
    applyText(widget, alpha);
}

void CardTheme::refreshTexts(QWidget &card)
{
    const auto widgets = card.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QVariant alpha = widget->property(AlphaProperty);
        if (alpha.isValid() && alpha.toInt() != CardLabel::NoTextAlpha) {
            applyText(*widget, alpha.toInt());
        }
    }
    card.update();
}

QColor CardTheme::cardGround()
{
    return isLight() ? QColor(247, 247, 247, 200) : QColor(0x19, 0x19, 0x19, 204);
}

QColor CardTheme::rowGround()
{
    // The dark theme's white texts would be illegible on the panel's own background.
    return isDark() ? QColor(255, 255, 255, 20) : panelGround();
}

int CardTheme::coatsOnChip(const QColor &text)
{
    if (!isDark() || qGray(text.rgb()) >= DarkestOnDark) {
        return 0;
    }
    int coats = 1;
    for (qreal seen = 1 - text.alphaF(); seen > MostSeenThroughText && coats < MostCoats; ++coats) {
        seen *= 1 - text.alphaF();
    }
    return coats;
}

void CardTheme::paintChip(QPainter &painter, const QRect &rect)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(ChipGray, ChipGray, ChipGray));
    const qreal radius = rect.height() / 2.0;
    painter.drawRoundedRect(rect, radius, radius);
    painter.restore();
}
