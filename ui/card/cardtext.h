// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lfontsizemanager.h>

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE
class LLabel;

/**
 * The texts of a card. Every label comes from here, because most texts were written by other people: they are
 * plain text, become dots when they do not fit and do not make the card wider than a card is.
 */
namespace CardText {

/// How strong a text is, as the alpha of its colour.
constexpr int TitleAlpha = 102;
constexpr int CaptionAlpha = 153;
constexpr int ValueAlpha = 178;

/// A label in the theme's colour, owned by @p parent.
LLabel *label(const QString &text, LFontSizeManager::SizeType size, int alpha, QWidget *parent);

/// The same in a colour that the theme does not change.
LLabel *coloredLabel(const QString &text, LFontSizeManager::SizeType size, const QColor &color,
                     QWidget *parent);

/// The theme's text colour with @p alpha on @p widget. It is remembered for followTheme().
void setColor(QWidget &widget, int alpha);

/// Gives everything inside @p card that setColor() was used on the colour of the theme of this moment.
void followTheme(const QWidget &card);

} // namespace CardText
