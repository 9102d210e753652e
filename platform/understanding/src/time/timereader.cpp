// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "time/timereader.h"

#include "text/characterset.h"
#include "text/chinesenumber.h"
#include "text/scan.h"
#include "time/clockreader.h"
#include "time/dayparts.h"
#include "time/dayreader.h"
#include "time/offsetreader.h"

namespace understanding {

namespace {

/// True for the few characters with which a time can begin.
bool canBegin(QChar character)
{
    static const CharacterSet starts(
        u"零〇一二两三四五六七八九十百廿卅半今明后昨前去大当上下中正晌这本周星礼早清晨"
        "凌午傍黄晚夜深差过再隔等俩仨赶听外翌黑头擦");
    return (character >= QLatin1Char('0') && character <= QLatin1Char('9')) ||
           (character.unicode() >= 0x80 && starts.contains(character));
}

/// Reads the parts of one moment, in any order and each at most once; returns the end.
int readMoment(const QString &text, int position, TimeExpression &expression, bool &unclear)
{
    int end = position;
    int at = position;
    while (at < text.size()) {
        TimeExpression next = expression;
        bool noDay = false;
        bool isOffset = false;
        int length = 0;
        // A second day explains the first (3月20号周五, 周五3月20号). The last one with a month wins,
        // otherwise the first.
        if (!expression.hasOffset) {
            length = readDay(text, at, next, noDay);
        }
        if (length > 0 && noDay) {
            unclear = true;
            next = expression;
        } else if (length > 0 && expression.day != TimeExpression::Day::None &&
                   next.day != TimeExpression::Day::MonthAndDay) {
            next = expression;
        }
        if (length == 0 && !expression.hasClock) {
            length = readClock(text, at, next);
        }
        if (length == 0 && expression.part < 0) {
            const int part = dayPartAt(text, at, true);
            if (part >= 0) {
                const DayPart &found = dayPart(part);
                length = found.word.size();
                next.part = part;
                // 晚一点 in 周五晚一点 may only mean "later".
                TimeExpression hour;
                const QChar before = charAt(text, at - 1);
                const bool alone = found.word.size() == 1 && before != QChar(u'今') &&
                                   before != QChar(u'明') && before != QChar(u'昨') && before != QChar(u'后');
                if (alone &&
                    (readClock(text, at + 1, hour) == 0 || startsAt(text, at + 1, QStringLiteral("一点")))) {
                    length = 0;
                }
            }
        }
        if (length == 0 && expression.isEmpty() && !unclear) {
            TimeExpression offset;
            length = readLengthOfTime(text, at, offset, isOffset);
            if (!isOffset) {
                length = 0;
            } else {
                next = offset;
            }
        }
        if (length == 0) {
            break;
        }
        expression = next;
        at += length;
        end = at;
        at = skipSpaces(text, at);
        if (charAt(text, at) == QChar(u'的') && end == at) {
            ++at;
        }
        if (charAt(text, at) == QLatin1Char('(')) { // 下周三(11号)
            ++at;
        }
    }
    return end;
}

/// Reads the rest of a span: 到四点, -15:00. Returns the new end.
int readSpanEnd(const QString &text, int end, TimeExpression &expression)
{
    const int start = skipSpaces(text, end);
    const int joint = firstOf(text, start, {u"开到", u"一直到", u"到", u"至", u"-", u"~"});
    if (joint == 0) {
        return end;
    }
    int at = skipSpaces(text, start + joint);
    TimeExpression last;
    bool unclear = false;
    const int spanEnd = readMoment(text, at, last, unclear);
    if (spanEnd == at) {
        return end;
    }
    TimeExpression day;
    bool noDay = false;
    const bool dayFollows = last.day != TimeExpression::Day::None && readDay(text, at, day, noDay) == 0;
    if (dayFollows && expression.day == TimeExpression::Day::None && last.hasClock) { // 三点到四点明天
        const int part = expression.part;
        expression.complete(last);
        expression.part = part;
    }
    return spanEnd + firstOf(text, spanEnd, {u"之间", u"期间"});
}

} // namespace

TimeMatch readTime(const QString &text, int position)
{
    TimeMatch match;
    if (position >= text.size() || !canBegin(text.at(position))) {
        return match;
    }
    bool unclear = false;
    int end = readMoment(text, position, match.expression, unclear);
    if (end > position) {
        match.kind = unclear ? TimeMatch::Kind::UnclearDay : TimeMatch::Kind::Time;
        end += firstOf(text, end, {u"左右", u"前后", u"多", u"许"});
        end = readSpanEnd(text, end, match.expression);
        end += firstOf(text, end, {u"左右", u"前后", u"以前", u"之前", u"以后", u"之后", u"的时候"});
        match.length = end - position;
        return match;
    }
    bool isOffset = false;
    TimeExpression ignored;
    if (const int length = readLengthOfTime(text, position, ignored, isOffset)) {
        match.kind = TimeMatch::Kind::Duration;
        match.length = length;
    }
    return match;
}

} // namespace understanding
