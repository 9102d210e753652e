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

/// Every colour of the cards, by name, and the desktop's theme, which some of them follow.
namespace CardTheme {

bool isLight();
bool isDark();

/// Calls @p slot, as long as @p object lives, after every change of the application's palette, which comes
/// with every change of the theme.
template <typename Object, typename Slot>
void follow(Object *object, Slot slot)
{
    QObject::connect(qGuiApp, &QGuiApplication::paletteChanged, object, slot);
}

// Texts: how strong each is, as the alpha of the theme's text colour.
constexpr int TitleAlpha = 102;
constexpr int CaptionAlpha = 153;
constexpr int ValueAlpha = 178;
constexpr int HoverAlpha = 15; ///< what lies over a row under the mouse
constexpr int LineAlpha = 26;  ///< the line between two parts of a card

/// Black in the light theme, white otherwise, with @p alpha from 0 to 255.
QColor text(int alpha);

/// A palette that says nothing but that text colour, for a new widget. Made once for each colour: making it
/// costs as much as the rest of colouring a label.
QPalette textPalette(int alpha);

/// Gives @p widget that text colour, and remembers @p alpha as its property cardTextAlpha for refreshTexts().
void setText(QWidget &widget, int alpha);

/// Gives everything in @p card that setText() was used on the colour of the current theme, and paints @p card
/// anew.
void refreshTexts(QWidget &card);

// Grounds.
QColor cardGround();
/// The ground of a candidate row in the current theme.
QColor rowGround();
/// The ground that a rounded panel has unless told otherwise.
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
/// Over the ground of a row that was picked.
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

/// How often @p text, a colour that does not follow the theme, is painted over a chip until it can be read
/// there. 0 where it needs no chip: on the light theme and for bright colours.
int coatsOnChip(const QColor &text);

/// Fills @p rect with the light, round ground of a text that the dark theme would hide.
void paintChip(QPainter &painter, const QRect &rect);

} // namespace CardTheme
