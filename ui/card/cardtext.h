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
 * plain text, elided when they do not fit, and never widen the card.
 */
namespace CardText {

/// A label in the theme's text colour with @p alpha, owned by @p parent.
CardLabel *label(const QString &text, LFontSizeManager::SizeType size, int alpha, QWidget *parent);

/// The same in a colour that the theme does not change.
CardLabel *coloredLabel(const QString &text, LFontSizeManager::SizeType size, const QColor &color,
                        QWidget *parent);

/// Whether @p text is longer than any screen could show on one line.
bool isLong(const QString &text);

/// @p text itself; a long one is cut to what could ever be visible, with an ellipsis.
QString beginning(const QString &text);

/// @p text without line breaks, with which its writer could make the row as tall as they like.
QString oneLine(QString text);

/// The beginning of @p text as a tool tip that shows every character as it is. A tool tip has no plain
/// format: Qt guesses.
QString plainToolTip(const QString &text);

} // namespace CardText
