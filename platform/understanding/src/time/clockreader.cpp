// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "time/clockreader.h"

#include "text/chinesenumber.h"
#include "text/scan.h"

namespace understanding {

namespace {

constexpr int LastHour = 24;
constexpr int LastMinute = 59;
constexpr int QuarterMinutes = 15;

/// Reads 一刻, 三刻; returns the length.
int readQuarters(const QString &text, int position, int &minutes)
{
    if (firstOf(text, position, {u"一刻", u"1刻"}) > 0) {
        minutes = QuarterMinutes;
    } else if (firstOf(text, position, {u"两刻", u"二刻", u"2刻"}) > 0) {
        minutes = 2 * QuarterMinutes;
    } else if (firstOf(text, position, {u"三刻", u"3刻"}) > 0) {
        minutes = 3 * QuarterMinutes;
    } else {
        return 0;
    }
    return 2;
}

/// Reads the minutes behind 点; returns the length, 0 if the hour stands alone.
int readMinutes(const QString &text, int position, int &minutes)
{
    if (charAt(text, position) == QChar(u'半')) {
        minutes = 30;
        return 1;
    }
    const int past = firstOf(text, position, {u"过"});
    const int start = skipSpaces(text, position + past);
    if (const int length = readQuarters(text, start, minutes)) {
        return start + length - position;
    }
    const NumberMatch number = readQuantity(text, start);
    if (!number) {
        return 0;
    }
    const int after = start + number.length;
    const int unit = firstOf(text, after, {u"分钟", u"分"});
    const bool oneDigit = number.length == 1 && number.value < 10;
    // 三点五个人 and 三点一起 hold no minutes; nobody says 三点五.
    if (unit == 0 &&
        (oneDigit || firstOf(text, after, {u"个", u"人", u"位", u"名", u"点", u":", u"月", u"号"}) > 0)) {
        return 0;
    }
    if (number.value > LastMinute) {
        return 0;
    }
    minutes = number.value;
    return after + unit - position;
}

/// Reads 15:30 and 15:30:00; readHalfDay() reads the pm of 3:30pm.
int readDigitalClock(const QString &text, int position, TimeExpression &expression)
{
    const NumberMatch hours = readQuantity(text, position);
    if (!hours || !isAsciiDigit(text.at(position)) || hours.length > 2) {
        return 0;
    }
    int at = position + hours.length;
    if (charAt(text, at) != QLatin1Char(':') || !isAsciiDigit(charAt(text, at + 1)) ||
        !isAsciiDigit(charAt(text, at + 2)) || isAsciiDigit(charAt(text, at + 3))) {
        return 0;
    }
    const NumberMatch minutes = readQuantity(text, at + 1);
    at += 3;
    if (charAt(text, at) == QLatin1Char(':') && isAsciiDigit(charAt(text, at + 1)) &&
        isAsciiDigit(charAt(text, at + 2))) {
        at += 3;
    }
    expression.hasClock = true;
    expression.hour = hours.value;
    expression.minute = minutes.value;
    expression.impossible = hours.value > LastHour || minutes.value > LastMinute;
    return at - position;
}

/// Reads "pm" or "AM" behind an hour of ASCII digits.
int readHalfDay(const QString &text, int position, TimeExpression &expression)
{
    const int start = skipSpaces(text, position);
    const QString letters = text.mid(start, 2).toLower();
    const QChar after = charAt(text, start + 2);
    const bool afternoon = letters == QLatin1String("pm");
    if ((!afternoon && letters != QLatin1String("am")) ||
        (after.unicode() < 0x80 && after.isLetterOrNumber())) {
        return 0;
    }
    if (expression.hour <= 12) {
        expression.hour = expression.hour % 12 + (afternoon ? 12 : 0);
    }
    expression.minutesLess = 0;
    return start + 2 - position;
}

/// Reads what is taken off an hour: 差一刻, 差五分.
int readLess(const QString &text, int position, int &minutes)
{
    if (firstOf(text, position, {u"差", u"欠"}) == 0) {
        return 0;
    }
    int at = position + 1;
    if (const int length = readQuarters(text, at, minutes)) {
        at += length + firstOf(text, at + length, {u"钟"});
    } else {
        const NumberMatch number = readQuantity(text, at);
        if (!number || number.value > LastMinute) {
            return 0;
        }
        minutes = number.value;
        at += number.length;
        at += firstOf(text, at, {u"分钟", u"分"});
    }
    return at + firstOf(text, at, {u"到", u"就"}) - position;
}

} // namespace

int readClock(const QString &text, int position, TimeExpression &expression)
{
    if (const int length = readDigitalClock(text, position, expression)) {
        return length + readHalfDay(text, position + length, expression);
    }

    int less = 0;
    int at = position + readLess(text, position, less);
    const bool hasLess = at > position;
    const NumberMatch hours = readQuantity(text, at);
    if (!hours || hours.length > 3) {
        return 0;
    }
    const int ones = digitValue(text.at(at + hours.length - 1));
    const bool isEither = hours.length == 2 && ones > 0 &&
                          !isAsciiDigit(text.at(at)) && // 二三点: two or three
                          digitValue(text.at(at)) == ones - 1;
    if (isEither) {
        return 0;
    }
    at += hours.length;
    if (isAsciiDigit(text.at(at - 1))) {
        TimeExpression english = expression;
        english.hour = hours.value;
        if (const int length = readHalfDay(text, at, english)) {
            expression = english;
            expression.hasClock = true;
            return at + length - position;
        }
    }
    // 三到四点: both hours share one 点; the first is meant.
    const int joint = firstOf(text, at, {u"到", u"至", u"-", u"~"});
    const NumberMatch last = joint > 0 ? readQuantity(text, at + joint) : NumberMatch();
    if (last && last.length <= 3 && firstOf(text, at + joint + last.length, {u"点"}) > 0) {
        at += joint + last.length;
    }
    const int afterHours = skipSpaces(text, at);
    const QChar mark = charAt(text, afterHours);
    if (mark != QChar(u'点') && mark != QChar(u'时')) {
        return 0;
    }
    at = afterHours + 1;
    // 三点建议, 一点儿, 两时间: not every 点 is an hour.
    if (firstOf(text, at,
                {u"建议", u"意见", u"要求", u"问题", u"想法", u"内容", u"原因", u"理由", u"说明", u"看法",
                 u"儿", u"点", u"都不", u"也不", u"都没", u"也没", u"间", u"候", u"区"}) > 0) {
        return 0;
    }
    // 三点五个小时: a decimal, no hour.
    const int decimal = at < text.size() ? digitValue(text.at(at)) : -1;
    if (decimal >= 0 && firstOf(text, at + 1, {u"个小时", u"小时", u"个钟头", u"版"}) > 0) {
        return 0;
    }
    expression.hasClock = true;
    expression.hour = hours.value;
    expression.minute = 0;
    expression.minutesLess = less;
    expression.impossible = hours.value > LastHour;
    at += firstOf(text, at, {u"整个"}) > 0 ? 0 : firstOf(text, at, {u"钟", u"整"}); // 三点整个会
    if (!hasLess) {
        const int afterLess = at + readLess(text, at, expression.minutesLess);
        at = afterLess > at ? afterLess : at + readMinutes(text, at, expression.minute);
    }
    if (last) { // 三到四点半: the half belongs to the end
        expression.minute = 0;
        expression.minutesLess = less;
    }
    at += firstOf(text, at, {u"整个"}) > 0 ? 0 : firstOf(text, at, {u"钟", u"整"}); // 三点整个会
    return at - position;
}

} // namespace understanding
