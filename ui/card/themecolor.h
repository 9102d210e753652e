// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QColor>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The colours of the cards that follow the desktop's theme.
namespace ThemeColor {

/// Black in the light theme, white otherwise, with @p alpha from 0 to 255.
QColor text(int alpha);

/// Gives @p widget that text colour in the theme of this moment, for all colour groups. Whoever calls it
/// calls it again when the theme changes.
void applyText(QWidget &widget, int alpha);

} // namespace ThemeColor
