// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

namespace understanding {

constexpr int SecondsPerMinute = 60;

/// What a sentence says about a time, part by part, before it is resolved against a clock.
struct TimeExpression
{
    enum class Day {
        None,
        Relative,   ///< dayOffset days from today
        Weekday,    ///< weekday, in the week weekOffset weeks from this one when weekNamed, else the next one
        DayOfMonth, ///< dayOfMonth, in the month monthOffset months from this one when monthNamed, else the
                    ///< next one
        MonthAndDay ///< month and dayOfMonth, in year when that is not 0, else the next one
    };
    Day day = Day::None;
    int dayOffset = 0;
    int weekday = 0; ///< 1 is Monday
    bool weekNamed = false;
    int weekOffset = 0; ///< also without a day: 下周
    int dayOfMonth = 0;
    int month = 0;
    int year = 0;
    bool yearIsOffset = false; ///< year counts from this one (明年)
    bool monthNamed = false;
    int monthOffset = 0; ///< also without a day: 下个月

    int part = -1; ///< row of the parts of the day, -1 for none

    bool hasClock = false;
    int hour = 0;
    int minute = 0;
    int minutesLess = 0; ///< 差一刻十二点: taken off the said hour

    bool hasOffset = false;
    int offsetSeconds = 0;
    int offsetDays = 0;
    int offsetMonths = 0;

    bool impossible = false; ///< such as 25 o'clock

    bool isEmpty() const { return day == Day::None && part < 0 && !hasClock && !hasOffset && !impossible; }
    bool isBareWeekday() const { return day == Day::Weekday && !weekNamed && part < 0 && !hasClock; }

    /// True for 昨天, 上周三, 上个月5号 and 去年3月1号.
    bool isPastDay() const;

    /// Takes from @p other what is not said here: "明天 ... 下午三点".
    void complete(const TimeExpression &other);
};

} // namespace understanding
