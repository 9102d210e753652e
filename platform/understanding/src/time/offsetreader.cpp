// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "time/offsetreader.h"

#include "text/chinesenumber.h"
#include "text/scan.h"

namespace understanding {

namespace {

constexpr int SecondsPerHour = 60 * SecondsPerMinute;

struct Unit
{
    const char16_t *word;
    int seconds;
    int days;
    int months;
};

// Longer words first.
constexpr Unit Units[] = {
    {u"个小时", SecondsPerHour, 0, 0},
    {u"个钟头", SecondsPerHour, 0, 0},
    {u"小时", SecondsPerHour, 0, 0},
    {u"钟头", SecondsPerHour, 0, 0},
    {u"个钟", SecondsPerHour, 0, 0},
    {u"分钟", SecondsPerMinute, 0, 0},
    {u"刻钟", 15 * SecondsPerMinute, 0, 0},
    {u"秒钟", 1, 0, 0},
    {u"秒", 1, 0, 0},
    {u"个星期", 0, 7, 0},
    {u"个礼拜", 0, 7, 0},
    {u"星期", 0, 7, 0},
    {u"礼拜", 0, 7, 0},
    {u"周", 0, 7, 0},
    {u"个月", 0, 0, 1},
    {u"天", 0, 1, 0},
    {u"日", 0, 1, 0},
    {u"年", 0, 0, 12},
    {u"分", SecondsPerMinute, 0, 0},
};

const Unit *unitAt(const QString &text, int position, int &length)
{
    for (const Unit &unit : Units) {
        length = firstOf(text, position, {unit.word});
        if (length > 0) {
            return &unit;
        }
    }
    return nullptr;
}

/// Reads an amount (一, 一点五, 1.5, 半) as @p tenths. Returns the length, 0 for none.
int readAmount(const QString &text, int position, int &tenths)
{
    if (charAt(text, position) == QChar(u'半')) {
        tenths = 5;
        return 1;
    }
    // 俩小时, 仨小时: the number includes the measure.
    const QChar contracted = charAt(text, position);
    if (contracted == QChar(u'俩') || contracted == QChar(u'仨')) {
        tenths = contracted == QChar(u'俩') ? 20 : 30;
        return 1;
    }
    const NumberMatch whole = readQuantity(text, position);
    if (!whole) {
        return 0;
    }
    tenths = whole.value * 10;
    const int after = position + whole.length;
    const QChar point = charAt(text, after);
    const int digit = after + 1 < text.size() ? digitValue(text.at(after + 1)) : -1;
    int unitLength = 0;
    if ((point == QLatin1Char('.') || point == QChar(u'点')) && digit >= 0 &&
        unitAt(text, after + 2, unitLength)) {
        tenths += digit;
        return whole.length + 2;
    }
    return whole.length;
}

/// Adds one amount with its unit to @p expression: 两个半小时, 半个小时, 二十分钟, 一小时半. Returns the
/// length, 0 for none.
int readPiece(const QString &text, int position, TimeExpression &expression)
{
    int tenths = 0;
    int at = position + readAmount(text, position, tenths);
    if (at == position) {
        return 0;
    }
    if (firstOf(text, at, {u"个半小时", u"个半钟头", u"个半月", u"个半天"}) > 0) {
        tenths += 5;
        at += 2;
    } else if (firstOf(text, at, {u"天半"}) > 0 || firstOf(text, at, {u"年半"}) > 0) {
        return 0;
    }
    int unitLength = 0;
    const Unit *unit = unitAt(text, at, unitLength);
    if (unit == nullptr && charAt(text, at) == QChar(u'个')) {
        unit = unitAt(text, ++at, unitLength);
    }
    if (unit == nullptr) {
        return 0;
    }
    at += unitLength;
    if (unit->seconds == SecondsPerHour && charAt(text, at) == QChar(u'半')) {
        tenths += 5;
        ++at;
    }
    if (unit->seconds == 0 && tenths % 10 != 0) {
        return 0; // half a day is no definite time
    }
    expression.offsetSeconds += unit->seconds * tenths / 10;
    expression.offsetDays += unit->days * tenths / 10;
    expression.offsetMonths += unit->months * tenths / 10;
    return at - position;
}

} // namespace

int readLengthOfTime(const QString &text, int position, TimeExpression &expression, bool &isOffset)
{
    const int prefix = firstOf(text, position, {u"再过", u"再等", u"过", u"隔", u"等"});
    int at = position + prefix;
    TimeExpression read;
    int pieces = 0;
    for (int length = readPiece(text, at, read); length > 0 && pieces < 3;
         length = readPiece(text, at, read)) {
        at += length;
        ++pieces;
        if (charAt(text, at) == QChar(u'零') || charAt(text, at) == QChar(u'又')) {
            ++at;
        }
    }
    if (pieces == 0) {
        return 0;
    }
    const int suffix = firstOf(text, at, {u"以后", u"之后", u"过后", u"后"});
    if (suffix == 0 && text.midRef(position, at - position) == QStringLiteral("过两天")) {
        return 0; // some day soon
    }
    const bool nextDay = firstOf(text, at, {u"后天"}) > 0; // 两天后天: 后天 is a separate word
    isOffset = prefix > 0 || (suffix > 0 && !nextDay);
    // 三分 and 五日 are no lengths of time unless counted from now.
    const QChar last = charAt(text, at - 1);
    if (!isOffset && (last == QChar(u'分') || last == QChar(u'日') || last == QChar(u'年'))) {
        return 0;
    }
    if (isOffset && !nextDay) {
        at += suffix;
    }
    if (isOffset) {
        read.hasOffset = true;
        expression.hasOffset = true;
        expression.offsetSeconds = read.offsetSeconds;
        expression.offsetDays = read.offsetDays;
        expression.offsetMonths = read.offsetMonths;
    }
    return at - position;
}

} // namespace understanding
