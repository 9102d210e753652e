// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QColor>
#include <QGuiApplication>
#include <QPalette>

QT_BEGIN_NAMESPACE
class QPainter;
class QRect;
class QWidget;
QT_END_NAMESPACE

/// The cards' colours by name. Some follow the desktop's theme.
namespace CardTheme {

bool isLight();
bool isDark();

/// Calls @p slot after every change of the application's palette, and so of the theme, until @p object is
/// deleted.
template <typename Object, typename Slot>
void follow(Object *object, Slot slot)
{
    QObject::connect(qGuiApp, &QGuiApplication::paletteChanged, object, slot);
}

// Alphas of the theme's text colour.
constexpr int TitleAlpha = 102;
constexpr int CaptionAlpha = 153;
constexpr int ValueAlpha = 178;
constexpr int HoverAlpha = 15; ///< the veil over a row under the mouse
constexpr int LineAlpha = 26;  ///< the line between two parts of a card

/// Black in the light theme, white otherwise, with @p alpha from 0 to 255.
QColor text(int alpha);

/// A palette that sets only this text colour, for a new widget. Cached: building one costs as much as the
/// rest of colouring a label.
QPalette textPalette(int alpha);

/// Gives @p widget this text colour and stores @p alpha in its property cardTextAlpha for refreshTexts().
void setText(QWidget &widget, int alpha);

/// Recolours every widget in @p card that setText() was used on for the current theme, and repaints @p card.
void refreshTexts(QWidget &card);

// Backgrounds.
QColor cardGround();
/// A candidate row in the current theme.
QColor rowGround();
/// The default of a rounded panel.
inline QColor panelGround()
{
    return {247, 247, 247, 204};
}
/// One conference in a list of several.
inline QColor itemGround()
{
    return {0, 0, 0, 7};
}

// The same in both themes.
/// The cards' one accent.
inline QColor blue(int alpha = 255)
{
    return {0, 129, 255, alpha};
}
inline QColor focus()
{
    return blue();
}
/// The veil over a picked row.
inline QColor pickedGround()
{
    return blue(36);
}
inline QColor notStarted()
{
    return blue();
}
inline QColor inProgress()
{
    return {89, 190, 45};
}
inline QColor ended()
{
    return {0, 0, 0, 77};
}
inline QColor footer()
{
    return {0, 0, 0, 102};
}

/// How many times a text of colour @p text, which does not follow the theme, is painted over its chip to be
/// legible. 0 where it needs no chip: in the light theme and for bright colours.
int coatsOnChip(const QColor &text);

/// Fills @p rect with the light, rounded chip behind a text that would be illegible on the dark theme.
void paintChip(QPainter &painter, const QRect &rect);

} // namespace CardTheme
