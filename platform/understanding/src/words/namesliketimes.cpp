// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/namesliketimes.h"

#include "names/namelook.h"
#include "text/characterset.h"
#include "text/scan.h"
#include "words/lexicon.h"

namespace understanding {

namespace {

/// The number of characters behind the last 的 of @p token, at most three.
int tailLength(const QString &text, const Token &token)
{
    constexpr int most = 3;
    int length = 0;
    while (length < qMin(token.length, most) && text.at(token.end() - 1 - length) != QChar(u'的')) {
        ++length;
    }
    return length;
}

/// True for 小王 and 李娜, behind which 明 begins 明下午; 黄晓明 and 陶渊明 are whole names.
bool isWholeBefore(const QString &text, const Token &before)
{
    static const CharacterSet seldomInside(
        u"娜娟芳燕霞玲凤珍艳敏静洁颖倩莉雯佳婷怡琳雪欣瑶琪薇蕾蓉菲妍媛茜莲蓓丹萍磊强涛鹏");
    return tailLength(text, before) == 2 &&
           (isNamePrefix(text.at(before.end() - 2)) || seldomInside.contains(text.at(before.end() - 1)));
}

} // namespace

bool isSingleStranger(const QString &text, int at)
{
    static const CharacterSet never(u"的儿们婿");
    const auto isKnown = [&](int position) {
        return position >= text.size() || !text.at(position).isLetter() ||
               isLatinLetterOrDigit(text.at(position)) ||
               readTime(text, position).kind != TimeMatch::Kind::None ||
               Lexicon::instance().longestAt(text, position).length > 0;
    };
    return !isKnown(at) && isKnown(at + 1) && !never.contains(text.at(at));
}

bool isBehindFamilyName(const QString &text, const Tokens &tokens)
{
    if (tokens.empty() || tailLength(text, tokens.back()) != 1) {
        return false;
    }
    const Token &before = tokens.back();
    const bool titled = tokens.size() > 1 && tokens[tokens.size() - 2].kind == Token::Kind::Other &&
                        text.at(before.position - 1) != QChar(u'的');
    return before.kind == Token::Kind::Other || (before.is(WordClass::Title) && !titled);
}

bool isEndOfGivenName(const QString &text, const Tokens &tokens)
{
    if (tokens.size() < 2 || tokens.back().kind != Token::Kind::Other) {
        return false;
    }
    constexpr WordClasses leads = WordClass::Trigger | WordClass::Separator | WordClass::NameLabel |
                                  WordClass::Invite | WordClass::Pull;
    static const CharacterSet middles(u"小晓志");
    const Token &before = tokens.back();
    const std::size_t titled = tokens[tokens.size() - 2].is(WordClass::Title) ? 3 : 2; // 跟护士罗刚开会
    const int said = tailLength(text, before);
    const bool isWhole = said == 2 && !middles.contains(text.at(before.end() - 1));
    // 我和张伟刚开会 tells of a conference, 叫张伟来开会 calls him.
    static const CharacterSet apart(u"刚来");
    return said <= 2 && !(isWhole && apart.contains(text.at(before.end()))) && tokens.size() >= titled &&
           tokens[tokens.size() - titled].isAny(leads) &&
           isPersonsName(text.mid(before.end() - said, said + 1));
}

bool isInUnknownName(const QString &text, const Tokens &tokens, int at, const TimeMatch &match)
{
    if (match.kind == TimeMatch::Kind::None || tokens.empty()) {
        return false;
    }
    const Token &before = tokens.back();
    constexpr WordClasses leadsToNames = WordClass::Trigger | WordClass::Separator | WordClass::NameLabel;
    const bool owned = before.kind == Token::Kind::Other && // 数学组的周一鸣
                       text.at(before.end() - 1) == QChar(u'的') && (before.length > 1 || tokens.size() > 1);
    const bool afterLead = owned || before.isAny(leadsToNames);
    if (afterLead && match.expression.isBareWeekday()) {
        const int end = at + match.length;
        return end < text.size() && (!owned || isSingleStranger(text, end)) &&
               readTime(text, end).kind == TimeMatch::Kind::None &&
               Lexicon::instance().longestAt(text, end).length == 0 && text.at(end) != QChar(u'的') &&
               text.at(end) != QLatin1Char(' ') && !isLatinLetterOrDigit(text.at(end));
    }
    if (before.kind != Token::Kind::Other) {
        return false;
    }
    if (match.expression.isBareWeekday() && tailLength(text, before) == 1 &&
        isNamePrefix(text.at(before.end() - 1)) && // 老周一起三点开会
        firstOf(text, at + 1, {u"一起", u"一块", u"一同", u"一道"}) > 0) {
        return true;
    }
    const TimeMatch later = readTime(text, at + 1);
    // 陶渊明下午三点: hardly anybody says 明下午.
    if (tailLength(text, before) <= 2 && !isWholeBefore(text, before) &&
        firstOf(text, at, {u"明上午", u"明下午", u"明中午"}) > 0) {
        return later.kind == TimeMatch::Kind::Time;
    }
    const bool laterIsTime = later.kind == TimeMatch::Kind::Time && !later.expression.impossible;
    // 李四四点; 张三周三 holds no three weeks.
    const bool unlikely =
        match.expression.impossible || (match.kind == TimeMatch::Kind::Duration && before.length == 1);
    if (unlikely) {
        return laterIsTime;
    }
    // One character is no name: 和高明早上 is 高明, 和王五十分钟后 is 王五.
    const bool alone = before.length == 1 && tokens.size() > 1 &&
                       tokens[tokens.size() - 2].isAny(leadsToNames) &&
                       isPersonsName(text.mid(before.position, 2)); // but not 说二 in 通知说二十号开学
    static const CharacterSet givenNames(u"明晨一二三四五六七八九");
    return alone && laterIsTime && givenNames.contains(text.at(at));
}

} // namespace understanding
