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

/// Gives @p calendar its look for as long as it lives; it follows the theme and the month that is shown.
void giveTo(QCalendarWidget &calendar);

/// Gives @p calendar the colours of the theme and dims the days that are past. They stay selectable.
void refresh(QCalendarWidget &calendar);

} // namespace CalendarLook
