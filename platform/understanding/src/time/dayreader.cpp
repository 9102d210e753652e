// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "time/dayreader.h"

#include "text/chinesenumber.h"
#include "text/scan.h"
#include "time/clockreader.h"
#include "time/dayparts.h"
#include "time/wordtable.h"

namespace understanding {

namespace {

struct NamedDay
{
    QString word;
    int offset;
};

NamedDay parseDay(const QString &line)
{
    const QStringList fields = line.split(QLatin1Char('\t'));
    return {fields.at(0), fields.at(1).toInt()};
}

int readNamedDay(const QString &text, int position, TimeExpression &expression)
{
    static const WordTable<NamedDay> days(QStringLiteral("days.tsv"), parseDay);
    const int row = days.find(text, position);
    if (row >= 0) {
        expression.day = TimeExpression::Day::Relative;
        expression.dayOffset = days.at(row).offset;
        return days.at(row).word.size();
    }
    // 今早, 明晚, 明下午: the day in one character, only before a part of the day.
    constexpr struct
    {
        char16_t character;
        int offset;
    } shortDays[] = {{u'今', 0}, {u'明', 1}, {u'昨', -1}, {u'后', 2}};
    for (const auto &shortDay : shortDays) {
        if (text.at(position) == QChar(shortDay.character) && dayPartAt(text, position, false) < 0 &&
            dayPartAt(text, position + 1, true) >= 0) { // 后晚, but not 后半夜
            expression.day = TimeExpression::Day::Relative;
            expression.dayOffset = shortDay.offset;
            return 1;
        }
    }
    return 0;
}

int weekdayAt(const QString &text, int position)
{
    const QChar character = charAt(text, position);
    if (character == QChar(u'日') || character == QChar(u'天')) {
        return 7;
    }
    const int digit = character.isNull() ? -1 : digitValue(character);
    return digit >= 1 && digit <= 7 ? digit : 0;
}

/// 下下周三, 这个星期五, 周日; a week without its day is unclear.
int readWeekday(const QString &text, int position, TimeExpression &expression, bool &unclear)
{
    int at = position;
    int weeks = 0;
    while (charAt(text, at) == QChar(u'下') && at - position < 4) {
        ++weeks;
        ++at;
    }
    while (weeks <= 0 && charAt(text, at) == QChar(u'上') && at - position < 4) {
        --weeks;
        ++at;
    }
    const int thisWeek = weeks == 0 ? firstOf(text, at, {u"这", u"本", u"当"}) : 0;
    at += thisWeek;
    const bool named = at > position;
    if (named) {
        at += firstOf(text, at, {u"一个", u"个"});
    }
    const int week = firstOf(text, at, {u"星期", u"礼拜", u"周"});
    if (week == 0) {
        return 0;
    }
    at += week;
    if (named) { // 下周的周五
        const int again = firstOf(text, at, {u"的星期", u"的礼拜", u"的周", u"星期", u"周"});
        if (again > 0 && weekdayAt(text, at + again) > 0) {
            at += again;
        }
    }
    const int weekday = weekdayAt(text, at);
    const bool times = firstOf(text, at + 1, {u"次", u"个", u"年", u"刊"}) > 0; // 一周三次
    if (weekday == 0 || (times && !named)) {
        const int weekend = firstOf(text, at, {u"末"});
        unclear = weekend > 0 || named;
        return unclear ? at + weekend - position : 0;
    }
    expression.day = TimeExpression::Day::Weekday;
    expression.weekday = weekday;
    expression.weekNamed = named;
    expression.weekOffset = weeks;
    return at + 1 - position;
}

/// Reads the day's number with its 号 or 日, which is optional only if @p monthSaid; returns the length.
int readDayNumber(const QString &text, int position, bool monthSaid, int &day)
{
    const NumberMatch number = readQuantity(text, position);
    if (!number || number.length > 3 || number.value < 1) {
        return 0;
    }
    int at = position + number.length;
    const int sign = firstOf(text, at, {u"号", u"日"});
    if (sign == 0 && (!monthSaid || firstOf(text, at, {u"点", u":", u"个", u"月", u"人"}) > 0)) {
        return 0;
    }
    if (!monthSaid && firstOf(text, at + sign, {u"后", u"以后", u"之后"}) > 0 &&
        firstOf(text, at, {u"日"}) > 0) {
        return 0; // 三日后 counts days
    }
    // 5号线 and 3号会议室 are no days.
    if (!monthSaid &&
        (number.value > 31 || firstOf(text, at + sign, {u"会议室", u"线", u"楼", u"码", u"房"}) > 0)) {
        return 0;
    }
    day = number.value;
    return at + sign - position;
}

/// 6.18下午, 6-18 9:00: a date only before a part of the day or an hour, else a decimal.
int readDottedDay(const QString &text, int position, TimeExpression &expression)
{
    const NumberMatch month = readQuantity(text, position);
    const int mark = position + month.length;
    const QChar sign = charAt(text, mark);
    if (!month || month.value > 12 || (sign != QLatin1Char('.') && sign != QLatin1Char('-'))) {
        return 0;
    }
    const NumberMatch day = readQuantity(text, mark + 1);
    const int end = mark + 1 + day.length;
    if (!day || day.value < 1 || day.value > 31) {
        return 0;
    }
    const int next = skipSpaces(text, end);
    TimeExpression clock;
    if (dayPartAt(text, next, true) < 0 && readClock(text, next, clock) == 0) {
        return 0;
    }
    expression.day = TimeExpression::Day::MonthAndDay;
    expression.month = month.value;
    expression.dayOfMonth = day.value;
    return end - position;
}

int readMonthAndDay(const QString &text, int position, TimeExpression &expression, bool &unclear)
{
    const NumberMatch month = readQuantity(text, position);
    if (!month || month.length > 3) {
        return 0;
    }
    const int mark = position + month.length;
    const int sign = firstOf(text, mark, {u"月份", u"月"});
    const bool slash = sign == 0 && charAt(text, mark) == QLatin1Char('/') && month.value <= 12;
    if (sign == 0 && !slash) {
        return 0;
    }
    const int afterSign = skipSpaces(text, mark + (slash ? 1 : sign));
    int day = 0;
    const int length = readDayNumber(text, afterSign, true, day);
    if (length == 0) {
        unclear = !slash;
        return slash ? 0 : mark + sign - position;
    }
    if (slash && (day > 31 || charAt(text, afterSign + length) == QLatin1Char('/'))) {
        return 0;
    }
    expression.day = TimeExpression::Day::MonthAndDay;
    expression.month = month.value;
    expression.dayOfMonth = day;
    return afterSign + length - position;
}

/// Reads the year of 2026年3月20日, 明年3月1号 and 2026-03-20.
int readYear(const QString &text, int position, TimeExpression &expression)
{
    constexpr struct
    {
        const char16_t *word;
        int offset;
    } years[] = {{u"今年", 0}, {u"明年", 1}, {u"后年", 2}, {u"去年", -1}, {u"前年", -2}};
    for (const auto &year : years) {
        if (const int length = firstOf(text, position, {year.word})) {
            expression.year = year.offset;
            expression.yearIsOffset = true;
            return length + firstOf(text, position + length, {u"的"});
        }
    }
    const NumberMatch year = readQuantity(text, position);
    if (!year || (year.length != 4 && year.length != 2)) {
        return 0;
    }
    const QChar mark = charAt(text, position + year.length);
    const bool numeric = year.length == 4 && text.at(position).unicode() < 0x80 &&
                         (mark == QLatin1Char('-') || mark == QLatin1Char('/') || mark == QLatin1Char('.'));
    if (mark != QChar(u'年') && !numeric) {
        return 0;
    }
    expression.year = year.length == 2 ? 2000 + year.value : year.value;
    return year.length + 1;
}

int readNumericDay(const QString &text, int position, TimeExpression &expression)
{
    const NumberMatch month = readQuantity(text, position);
    const int mark = position + month.length;
    if (!month || charAt(text, mark) != charAt(text, position - 1)) {
        return 0;
    }
    const NumberMatch day = readQuantity(text, mark + 1);
    if (!day || month.value > 12 || day.value > 31) {
        return 0;
    }
    expression.day = TimeExpression::Day::MonthAndDay;
    expression.month = month.value;
    expression.dayOfMonth = day.value;
    const int end = mark + 1 + day.length;
    // ISO's T before the time of day.
    return end + (charAt(text, end) == QLatin1Char('T') ? 1 : 0) - position;
}

/// 下个月15号, 本月3号; a month without its day is unclear.
int readDayOfNamedMonth(const QString &text, int position, TimeExpression &expression, bool &unclear)
{
    int months = 0;
    int at = position;
    while (charAt(text, at) == QChar(u'下') && at - position < 3) {
        ++months;
        ++at;
    }
    if (months == 0) {
        const int last = firstOf(text, at, {u"上"});
        const int current = firstOf(text, at, {u"这", u"本", u"当"});
        months = -last;
        at += last + current;
    }
    if (at == position) {
        return 0;
    }
    at += firstOf(text, at, {u"个"});
    if (charAt(text, at) != QChar(u'月')) {
        return 0;
    }
    ++at;
    int day = 0;
    const int start = at + firstOf(text, at, {u"的"});
    const int length = readDayNumber(text, start, false, day);
    if (length == 0) {
        unclear = true;
        return at + firstOf(text, at, {u"底", u"初", u"中旬", u"上旬", u"下旬"}) - position;
    }
    expression.day = TimeExpression::Day::DayOfMonth;
    expression.dayOfMonth = day;
    expression.monthNamed = true;
    expression.monthOffset = months;
    return start + length - position;
}

} // namespace

int readDay(const QString &text, int position, TimeExpression &expression, bool &unclear)
{
    if (const int length = readWeekday(text, position, expression, unclear)) {
        return length;
    }
    if (const int length = readDayOfNamedMonth(text, position, expression, unclear)) {
        return length;
    }
    TimeExpression dated = expression;
    if (const int year = readYear(text, position, dated)) {
        int length = dated.yearIsOffset ? 0 : readNumericDay(text, position + year, dated);
        if (length == 0) {
            length = readMonthAndDay(text, position + year, dated, unclear);
        }
        if (length > 0) {
            expression = dated;
            return year + length;
        }
        unclear = dated.yearIsOffset || charAt(text, position + year - 1) == QChar(u'年');
        return unclear ? year : 0;
    }
    if (const int length = readNamedDay(text, position, expression)) {
        return length;
    }
    if (const int length = readMonthAndDay(text, position, expression, unclear)) {
        return length;
    }
    if (const int length = readDottedDay(text, position, expression)) {
        return length;
    }
    int day = 0;
    if (const int length = readDayNumber(text, position, false, day)) {
        expression.day = TimeExpression::Day::DayOfMonth;
        expression.dayOfMonth = day;
        return length;
    }
    return 0;
}

} // namespace understanding
