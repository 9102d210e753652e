// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QCalendarWidget;
QT_END_NAMESPACE

/// How the calendar of a date field looks: Chinese like the cards, without week numbers, in the theme's
/// colours.
namespace CalendarLook {

/// Applies the look to @p calendar, which from then on follows the theme and the displayed month.
void giveTo(QCalendarWidget &calendar);

/// Applies the theme's colours and dims past days, which stay selectable.
void refresh(QCalendarWidget &calendar);

} // namespace CalendarLook
