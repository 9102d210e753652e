// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "time/timeexpression.h"

namespace understanding {

bool TimeExpression::isPastDay() const
{
    switch (day) {
    case Day::Relative:
        return dayOffset < 0;
    case Day::Weekday:
        return weekNamed && weekOffset < 0;
    case Day::DayOfMonth:
        return monthNamed && monthOffset < 0;
    case Day::MonthAndDay:
        return yearIsOffset && year < 0;
    case Day::None:
        break;
    }
    return false;
}

void TimeExpression::complete(const TimeExpression &other)
{
    const TimeExpression own = *this;
    if (day == Day::None && other.day != Day::None && !hasOffset) {
        *this = other;
        part = own.part;
        hasClock = own.hasClock;
        hour = own.hour;
        minute = own.minute;
        minutesLess = own.minutesLess;
    }
    if (own.part < 0) {
        part = other.part;
    }
    if (!own.hasClock && other.hasClock) {
        hasClock = true;
        hour = other.hour;
        minute = other.minute;
        minutesLess = other.minutesLess;
    }
    if (own.isEmpty() && other.hasOffset) {
        hasOffset = true;
        offsetSeconds = other.offsetSeconds;
        offsetDays = other.offsetDays;
        offsetMonths = other.offsetMonths;
    }
    impossible = own.impossible || other.impossible;
}

} // namespace understanding
