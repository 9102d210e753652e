// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "text/chinesenumber.h"

#include "text/scan.h"

namespace understanding {

namespace {

constexpr QChar Ten(0x5341);       // 十
constexpr QChar Hundred(0x767e);   // 百
constexpr QChar Twenty(0x5eff);    // 廿
constexpr QChar Thirty(0x5345);    // 卅
constexpr QChar Two(0x4e24);       // 两
constexpr QChar One(0x5e7a);       // 幺
constexpr QChar Pieces(0x4e2a);    // 个
constexpr QChar Comma(0xff0c);     // ，
constexpr int LongestQuantity = 8; // characters; 九百九十九 takes five

NumberMatch readAsciiQuantity(const QString &text, int position)
{
    NumberMatch match;
    int at = position;
    while (at < text.size() && isAsciiDigit(text.at(at))) {
        if (at - position == 4) {
            return {};
        }
        match.value = match.value * 10 + text.at(at).digitValue();
        ++at;
    }
    match.length = at - position;
    return match;
}

/// Reads 二十五, 一百零五, 十: multiplies each digit by the unit that follows it.
NumberMatch readMultiplied(const QString &text, int position)
{
    int total = 0;
    int pending = -1;
    int smallestUnit = 1000;
    int at = position;
    for (; at < text.size() && at - position < LongestQuantity; ++at) {
        const QChar character = text.at(at);
        const int unit = character == Hundred ? 100 : character == Ten ? 10 : 0;
        if (unit != 0) {
            if (unit >= smallestUnit || (pending == 0 && unit != 10)) {
                break;
            }
            total += (pending < 0 ? 1 : pending) * unit;
            smallestUnit = unit;
            pending = -1;
        } else if ((character == Twenty || character == Thirty) && at == position) {
            total = character == Twenty ? 20 : 30;
            smallestUnit = 10;
        } else {
            const int digit = character == Two ? 2 : digitValue(character);
            if (digit < 0 || isAsciiDigit(character) || character == One || pending > 0 ||
                (pending == 0 && digit == 0)) {
                break;
            }
            pending = digit;
        }
    }
    if (at == position) {
        return {};
    }
    return {total + qMax(pending, 0), at - position};
}

} // namespace

int digitValue(QChar character)
{
    if (isAsciiDigit(character)) {
        return character.digitValue();
    }
    switch (character.unicode()) {
    case u'零':
    case u'〇':
        return 0;
    case u'一':
    case u'幺':
        return 1;
    case u'二':
        return 2;
    case u'三':
        return 3;
    case u'四':
        return 4;
    case u'五':
        return 5;
    case u'六':
        return 6;
    case u'七':
        return 7;
    case u'八':
        return 8;
    case u'九':
        return 9;
    default:
        return -1;
    }
}

NumberMatch readQuantity(const QString &text, int position)
{
    if (position >= text.size()) {
        return {};
    }
    if (isAsciiDigit(text.at(position))) {
        return readAsciiQuantity(text, position);
    }
    // Digits side by side are read one by one: 二零二六, 三零.
    int digits = 0;
    int value = 0;
    while (digits < 4 && position + digits < text.size()) {
        const QChar character = text.at(position + digits);
        const int digit = digitValue(character);
        if (digit < 0 || character == One || isAsciiDigit(character)) {
            break;
        }
        value = value * 10 + digit;
        ++digits;
    }
    const QChar next = position + digits < text.size() ? text.at(position + digits) : QChar();
    if (digits >= 2 && next != Ten && next != Hundred) {
        return {value, digits};
    }
    return readMultiplied(text, position);
}

/// 两 in 三两四: a digit beside others.
static bool isTwoInString(const QString &text, int at, int end, int start)
{
    if (text.at(at) != Two) {
        return false;
    }
    if (at > start && end == at) {
        return true;
    }
    int next = at + 1; // 两两三三, 幺八六 两两两零
    while (next < text.size() && text.at(next) == Two) {
        ++next;
    }
    return next < text.size() && digitValue(text.at(next)) >= 0;
}

/// The end of digits read aloud in three groups, up to eleven in all: 三八六，二二幺，七零九. @p position if
/// there are fewer groups: two may be two numbers.
static int spokenGroupsEnd(const QString &text, int position)
{
    constexpr int groups = 3;
    constexpr int shortestGroup = 3;
    constexpr int longestGroup = 4;
    constexpr int longestNumber = 11;
    int at = position;
    for (int group = 0; group < groups; ++group) {
        if (group > 0) {
            if (at >= text.size() || text.at(at) != QLatin1Char(',')) {
                return position;
            }
            ++at;
        }
        const int start = at;
        while (at < text.size() && at - start <= longestGroup && !isAsciiDigit(text.at(at)) &&
               digitValue(text.at(at)) >= 0) {
            ++at;
        }
        if (at - start < shortestGroup || at - start > longestGroup) {
            return position;
        }
    }
    const bool ends = at == text.size() || digitValue(text.at(at)) < 0;
    return ends && at - position - (groups - 1) <= longestNumber ? at : position;
}

int digitStringEnd(const QString &text, int position)
{
    int end = spokenGroupsEnd(text, position);
    if (end > position) {
        return end;
    }
    int at = position;
    while (at < text.size()) {
        const QChar character = text.at(at);
        const bool repeated = at + 2 < text.size() && text.at(at + 1) == Pieces &&
                              digitValue(text.at(at + 2)) >= 0 &&
                              (character == Two || digitValue(character) >= 2);
        if (repeated) {
            at += 3;
            end = at;
        } else if (digitValue(character) >= 0 || isTwoInString(text, at, end, position)) {
            end = ++at;
        } else if (end > position && (character == QLatin1Char(' ') || character == QLatin1Char('-'))) {
            ++at;
        } else {
            break;
        }
    }
    return end;
}

QString digitString(const QString &said)
{
    QString digits;
    bool onlyDigits = true;
    for (int at = 0; at < said.size(); ++at) {
        const QChar character = said.at(at);
        const int value = character == Two ? 2 : digitValue(character);
        if (at + 2 < said.size() && said.at(at + 1) == Pieces && value >= 2 &&
            digitValue(said.at(at + 2)) >= 0) {
            digits += QString(value, QChar(u'0' + digitValue(said.at(at + 2))));
            at += 2;
        } else if (value >= 0) {
            digits += QChar(u'0' + value);
        } else if (character != QLatin1Char(' ') && character != QLatin1Char(',') && character != Comma) {
            onlyDigits = onlyDigits && character == QLatin1Char('-');
            digits += character;
        }
    }
    // Dashes group the digits of a number; in an account they belong to it.
    return onlyDigits ? digits.remove(QLatin1Char('-')) : digits;
}

} // namespace understanding
