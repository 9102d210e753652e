// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

QT_BEGIN_NAMESPACE
class QColor;
class QPainter;
class QRect;
QT_END_NAMESPACE

/**
 * Paints a light ground into @p rect where a text in the colour @p text could not be read otherwise: the
 * theme is dark, and the colour, which its user fixed for both themes, is dark too. Paints nothing in other
 * cases.
 */
LUMO_EXPORT void paintLegibleGround(QPainter &painter, const QRect &rect, const QColor &text);
