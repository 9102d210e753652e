// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lfontsizemanager.h>

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE
class CardLabel;

/**
 * The texts of a card. Every label comes from here, because most texts were written by other people: they are
 * plain text, are elided when they do not fit and do not make the card wider than a card is.
 */
namespace CardText {

/// A label in the theme's colour with that @p alpha, owned by @p parent.
CardLabel *label(const QString &text, LFontSizeManager::SizeType size, int alpha, QWidget *parent);

/// The same in a colour that the theme does not change.
CardLabel *coloredLabel(const QString &text, LFontSizeManager::SizeType size, const QColor &color,
                        QWidget *parent);

/// Whether @p text is longer than anybody could see of it.
bool isLong(const QString &text);

/// @p text itself, or of a long one as much as could ever be seen, with dots.
QString beginning(const QString &text);

/// @p text without line breaks, which would make its row as tall as its writer likes.
QString oneLine(QString text);

/// The beginning of @p text as a tool tip that shows every character as it is. A tool tip has no plain
/// format: Qt guesses.
QString plainToolTip(const QString &text);

} // namespace CardText
