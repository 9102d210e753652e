// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "time/timeresolver.h"

#include "time/dayparts.h"

namespace understanding {

namespace {

constexpr int MinutesPerHour = 60;
constexpr int MinutesPerHalfDay = 12 * MinutesPerHour;
constexpr int MinutesPerDay = 24 * MinutesPerHour;

QDate resolveDayOfMonth(const TimeExpression &expression, QDate today)
{
    const QDate firstOfMonth(today.year(), today.month(), 1);
    int months = expression.monthOffset;
    if (!expression.monthNamed && expression.dayOfMonth < today.day()) {
        months = 1;
    }
    const QDate month = firstOfMonth.addMonths(months);
    return {month.year(), month.month(), expression.dayOfMonth};
}

QDate resolveMonthAndDay(const TimeExpression &expression, QDate today)
{
    if (expression.year != 0 || expression.yearIsOffset) {
        const int year = expression.yearIsOffset ? today.year() + expression.year : expression.year;
        return {year, expression.month, expression.dayOfMonth};
    }
    const bool past = expression.month < today.month() ||
                      (expression.month == today.month() && expression.dayOfMonth < today.day());
    return {today.year() + (past ? 1 : 0), expression.month, expression.dayOfMonth};
}

QDate resolveWeekday(const TimeExpression &expression, QDate today)
{
    const int distance = expression.weekday - today.dayOfWeek();
    if (expression.weekNamed) {
        return today.addDays(distance + 7 * expression.weekOffset);
    }
    return today.addDays(distance < 0 ? distance + 7 : distance);
}

/// The day that was said; invalid if it does not exist, today if none was said.
QDate resolveDay(const TimeExpression &expression, QDate today)
{
    switch (expression.day) {
    case TimeExpression::Day::Relative:
        return today.addDays(expression.dayOffset);
    case TimeExpression::Day::Weekday:
        return resolveWeekday(expression, today);
    case TimeExpression::Day::DayOfMonth:
        return resolveDayOfMonth(expression, today);
    case TimeExpression::Day::MonthAndDay:
        return resolveMonthAndDay(expression, today);
    case TimeExpression::Day::None:
        break;
    }
    return today;
}

/// The minutes after midnight of the said day that a bare hour means: 1 to 6 are in the afternoon, 7 to 12
/// the next such hour, or the morning of a day that is not today.
int minutesOfBareHour(const TimeExpression &expression, bool otherDay, bool dayNamed, int minutesNow)
{
    const int said = expression.hour * MinutesPerHour + expression.minute - expression.minutesLess;
    if (expression.hour >= 1 && expression.hour <= 6) {
        return said + MinutesPerHalfDay;
    }
    if (expression.hour == 0 && !dayNamed && said < minutesNow) {
        return said + MinutesPerDay; // the coming midnight
    }
    if (expression.hour == 0 || expression.hour > 12 || otherDay || said >= minutesNow) {
        return said;
    }
    if (said + MinutesPerHalfDay >= minutesNow || dayNamed) {
        return said + MinutesPerHalfDay;
    }
    return said + MinutesPerDay;
}

ResolvedTime problem(ResolvedTime::Problem what)
{
    ResolvedTime resolved;
    resolved.problem = what;
    return resolved;
}

ResolvedTime momentOf(QDate day, int minutes)
{
    ResolvedTime resolved;
    const int days = minutes >= MinutesPerDay ? 1 : minutes < 0 ? -1 : 0;
    const int ofDay = minutes - days * MinutesPerDay;
    resolved.date = day.addDays(days);
    resolved.time = QTime(ofDay / MinutesPerHour, ofDay % MinutesPerHour);
    return resolved;
}

QDateTime addOffset(const TimeExpression &expression, const QDateTime &now)
{
    // Seconds are dropped: a conference begins at a minute. Offsets of seconds are rounded up, lest they end
    // in the past.
    QDateTime moment = now.addMonths(expression.offsetMonths).addDays(expression.offsetDays);
    moment = moment.addSecs(expression.offsetSeconds);
    const bool roundUp = expression.offsetSeconds % SecondsPerMinute != 0 && moment.time().second() > 0;
    moment = moment.addSecs((roundUp ? SecondsPerMinute : 0) - moment.time().second());
    return moment.addMSecs(-moment.time().msec());
}

/// Writes @p number over the zeros in @p text, its last digit at @p last.
void writeDigits(QString &text, int last, int number)
{
    constexpr int base = 10;
    for (int at = last; number > 0 && at >= 0; --at, number /= base) {
        text[at] = QChar(u'0' + number % base);
    }
}

ResolvedTime resolve(const TimeExpression &expression, const QDateTime &now)
{
    const QDate today = now.date();
    QDate day = resolveDay(expression, today);
    if (!day.isValid()) {
        return problem(ResolvedTime::Problem::NoSuchDate);
    }
    if (expression.impossible) {
        return problem(ResolvedTime::Problem::Contradiction);
    }
    bool dayNamed = expression.day != TimeExpression::Day::None;
    if (expression.hasOffset) {
        const QDateTime moment = addOffset(expression, now);
        if (expression.part < 0 && !expression.hasClock) {
            ResolvedTime resolved;
            resolved.date = moment.date();
            resolved.time = moment.time();
            return resolved;
        }
        day = moment.date(); // 两天后下午三点
        dayNamed = true;
    }
    // 凌晨三点, said in the evening without a day, means the coming night.
    constexpr int evening = 18;
    constexpr int nightEnds = 5;
    const DayPart *part = expression.part < 0 ? nullptr : &dayPart(expression.part);
    if (!dayNamed && part != nullptr && part->lastHour <= nightEnds && now.time().hour() >= evening) {
        day = day.addDays(1);
    }
    if (expression.hasClock) {
        if (part == nullptr) {
            const int minutesNow = now.time().hour() * MinutesPerHour + now.time().minute();
            return momentOf(day, minutesOfBareHour(expression, day != today, dayNamed, minutesNow));
        }
        const int hour = part->hourFor(expression.hour);
        if (hour < 0) {
            return problem(ResolvedTime::Problem::Contradiction);
        }
        return momentOf(day, hour * MinutesPerHour + expression.minute - expression.minutesLess);
    }
    ResolvedTime resolved;
    resolved.date = day;
    if (part != nullptr) {
        if (!part->start.isValid()) {
            return problem(ResolvedTime::Problem::NoHour);
        }
        resolved.time = part->start;
    }
    return resolved;
}

} // namespace

QString ResolvedTime::toString() const
{
    // By hand: QDate and QTime format with printf, which takes a twentieth of reading the whole sentence.
    QString text = QStringLiteral("0000-00-00T00:00:00");
    writeDigits(text, 3, date.year());
    writeDigits(text, 6, date.month());
    writeDigits(text, 9, date.day());
    if (!time.isValid()) {
        return text.left(10);
    }
    writeDigits(text, 12, time.hour());
    writeDigits(text, 15, time.minute());
    writeDigits(text, 18, time.second());
    return text;
}

ResolvedTime resolveTime(const TimeExpression &expression, const QDateTime &now)
{
    constexpr int lastYear = 9999; // that four digits can say
    const ResolvedTime resolved = resolve(expression, now);
    return resolved.date.year() > lastYear ? problem(ResolvedTime::Problem::NoSuchDate) : resolved;
}

} // namespace understanding
