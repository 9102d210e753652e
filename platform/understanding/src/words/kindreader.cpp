// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/kindreader.h"

#include "text/characterset.h"
#include "text/scan.h"

#include <algorithm>

namespace understanding {

namespace {

constexpr int LongestKind = 12;     // in characters
constexpr int ShortestCompound = 3; // 评审会, unlike 会 and 会议, is what somebody opens

/// What an order means only outside the name of a conference.
constexpr WordClasses Misleading =
    WordClass::Change | WordClass::Cancel | WordClass::Unsupported | WordClass::Framed | WordClass::Reported |
    WordClass::Close | WordClass::Join | WordClass::WeakJoin | WordClass::Query | WordClass::Have |
    WordClass::Actor | WordClass::Lunar | WordClass::HowTo | WordClass::Schedule | WordClass::Plain |
    WordClass::AccountLabel | WordClass::PasswordLabel | WordClass::IdLabel | WordClass::Buddy |
    WordClass::Nobody | WordClass::NameLabel;

/// True for 开 and 约个, behind which the kind of a conference may stand.
bool opensKind(const QString &text, const Tokens &tokens, std::size_t at)
{
    static const CharacterSet verbs(u"开建约办搞做拉");
    const Token &verb = tokens[at];
    const bool opens = verb.is(WordClass::StrongOpen) || (verb.is(WordClass::WeakOpen) && verb.length == 1 &&
                                                          verbs.contains(text.at(verb.position)));
    const bool measured = at + 1 < tokens.size() && tokens[at + 1].is(WordClass::Measure);
    return opens && !verb.inTopic && (measured || !verb.is(WordClass::Trigger));
}

/// True for 个 and 一场, false for 一下.
bool counts(const QString &text, const Token &token)
{
    static const CharacterSet counting(u"个场次新");
    return token.is(WordClass::Measure) && counting.contains(text.at(token.end() - 1));
}

/// True for 查 in 走查, 建 in 团建: a verb that makes one word with the single character before it.
bool isEndOfWord(const QString &text, const Tokens &tokens, std::size_t at)
{
    if (at == 0 || tokens[at].length != 1 || !tokens[at].isAny(WordClass::WeakOpen | WordClass::Query) ||
        text.at(tokens[at].position) == QChar(u'开')) { // 建个群开会
        return false;
    }
    const Token &before = tokens[at - 1];
    const bool owned = before.length == 2 && text.at(before.position) == QChar(u'的'); // 明天三点的走查会
    return before.kind == Token::Kind::Other && (before.length == 1 || owned) &&
           before.end() == tokens[at].position;
}

/// True if the token at @p at may be a part of the name of a conference.
bool mayBeInKind(const QString &text, const Tokens &tokens, std::size_t at)
{
    constexpr WordClasses never = WordClass::Punctuation | WordClass::Negation | WordClass::Recurring |
                                  WordClass::EitherOr | WordClass::Zone | WordClass::CloseAlone |
                                  WordClass::Measure | WordClass::Mine | WordClass::Request |
                                  WordClass::Repair;
    constexpr WordClasses verbs = WordClass::WeakOpen | WordClass::Query;
    const Token &token = tokens[at];
    const bool written = token.kind == Token::Kind::Other || token.kind == Token::Kind::Word ||
                         token.kind == Token::Kind::Latin;
    const bool calls =
        token.isAny(WordClass::Trigger | WordClass::Separator) && !token.is(WordClass::StrongOpen);
    const bool clock = firstOf(text, token.position, {u"时间", u"日期"}) > 0;
    const bool people = token.isAny(WordClass::Nobody | WordClass::NameLabel) &&
                        firstOf(text, token.position, {u"成员", u"人员", u"员工", u"好友"}) == 0;
    if (!written || calls || clock || people || token.isAny(never)) {
        return false;
    }
    if (token.length > 1 || !token.isAny(Misleading | verbs)) {
        return true;
    }
    // 退 in 退货流程会, 录 in 目录评审会
    const bool joined = (at + 1 < tokens.size() && tokens[at + 1].kind == Token::Kind::Other) ||
                        (at > 0 && tokens[at - 1].kind == Token::Kind::Other);
    return isEndOfWord(text, tokens, at) || (joined && !token.isAny(verbs));
}

/// True if the conference at @p at is of the kind that begins at @p begin.
bool isOfKind(const QString &text, const Tokens &tokens, std::size_t begin, std::size_t at)
{
    const Token &conference = tokens[at];
    const Token &last = tokens[at - 1];
    const QChar behind = charAt(text, conference.end());
    const QChar end = text.at(conference.end() - 1);
    if (!conference.is(WordClass::Conference) || conference.is(WordClass::Join) || behind == QChar(u'室') ||
        end == QChar(u'室') || last.end() != conference.position) {
        return false;
    }
    if (conference.length >= ShortestCompound) {
        return true;
    }
    // 建议收集会, 架构调整会, but neither 提前结束会议 nor 没意思的会
    const bool noun = last.kind == Token::Kind::Other && text.at(last.end() - 1) != QChar(u'的');
    const bool people = last.is(WordClass::Title) && last.length > 1 && at == begin + 1; // 店长会
    return noun || people || isEndOfWord(text, tokens, at - 1) ||
           last.isAny(WordClass::Topic | WordClass::Talk) || // 方案部署会, 技术座谈会
           (conference.length == 1 && last.is(WordClass::Change));
}

/// The conference whose kind begins at @p begin; @p begin for none.
std::size_t conferenceOfKind(const QString &text, const Tokens &tokens, std::size_t begin)
{
    std::size_t end = begin;
    while (end < tokens.size() && !tokens[end].is(WordClass::Conference) &&
           tokens[end].end() - tokens[begin].position <= LongestKind && mayBeInKind(text, tokens, end)) {
        ++end;
    }
    const bool found = end > begin && end < tokens.size() && isOfKind(text, tokens, begin, end);
    return found ? end : begin;
}

/// 登录功能评审会明天三点开: the clause ends with the verb that opens the conference at @p conference.
bool isOpenedBehind(const QString &text, const Tokens &tokens, std::size_t conference)
{
    bool timed = false;
    std::size_t at = conference + 1;
    while (at < tokens.size() && (tokens[at].kind == Token::Kind::Time || tokens[at].is(WordClass::Filler))) {
        timed = timed || tokens[at].kind == Token::Kind::Time;
        ++at;
    }
    return timed && at < tokens.size() && tokens[at].length == 1 &&
           text.at(tokens[at].position) == QChar(u'开') && isAtClauseEnd(tokens, at + 1);
}

void markKind(Tokens &tokens, std::size_t begin, std::size_t end, bool dated)
{
    constexpr WordClasses people = WordClass::Title | WordClass::Address; // 工 in 工程会, 亲 in 亲子会
    constexpr WordClasses misleading = Misleading | WordClass::Topic | WordClass::WeakOpen;
    const bool misleads =
        begin < end && (tokens[begin].isAny(people) ||
                        std::any_of(tokens.cbegin() + static_cast<std::ptrdiff_t>(begin),
                                    tokens.cbegin() + static_cast<std::ptrdiff_t>(end),
                                    [&](const Token &token) { return token.isAny(misleading); }));
    for (std::size_t at = begin; misleads && at < end; ++at) {
        // 中秋活动筹备会 tells when only if nothing else does.
        tokens[at].inTopic = tokens[at].inTopic || dated || !tokens[at].is(WordClass::Lunar);
    }
}

void joinNext(Tokens &tokens, std::size_t at)
{
    tokens[at].length = tokens[at + 1].end() - tokens[at].position;
    tokens.erase(tokens.begin() + static_cast<std::ptrdiff_t>(at) + 1);
}

/// Splits the conference off a longer word that ends the clause: 会 in 签约会 and 业委会, 会议 in 招商会议.
void splitConference(const QString &text, Tokens &tokens, std::size_t begin)
{
    std::size_t at = begin;
    while (at < tokens.size() && tokens[at].kind == Token::Kind::Other &&
           tokens[at].end() - tokens[begin].position <= LongestKind) {
        ++at;
    }
    const bool ends = at < tokens.size() && tokens[at].is(WordClass::Plain) && tokens[at].length > 1 &&
                      text.at(tokens[at].end() - 1) == QChar(u'会');
    // 约会 and 商会 alone are other things.
    if (!ends || (at == begin && firstOf(text, tokens[at].end() - 2, {u"委会"}) == 0)) {
        return;
    }
    const bool longer = at + 1 < tokens.size() && tokens[at + 1].kind == Token::Kind::Other &&
                        tokens[at + 1].length == 1 && text.at(tokens[at + 1].position) == QChar(u'议');
    if (!isAtClauseEnd(tokens, longer ? at + 2 : at + 1)) {
        return;
    }
    Token &word = tokens[at];
    word.kind = Token::Kind::Other;
    word.classes = {};
    --word.length;
    Token conference;
    conference.kind = Token::Kind::Word;
    conference.position = word.end();
    conference.length = longer ? 2 : 1;
    conference.classes = WordClass::Conference;
    if (longer) {
        tokens[at + 1] = conference;
    } else {
        tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(at) + 1, conference);
    }
    if (at > begin) {
        joinNext(tokens, at - 1);
    }
}

/// 订 in 开订单会 and 组织 in 开组织生活会 open nothing: 开 does.
void settleSecondVerb(const QString &text, Tokens &tokens, std::size_t begin)
{
    Token &second = tokens[begin];
    const bool opened =
        text.at(second.position - 1) == QChar(u'开') && tokens[begin - 1].is(WordClass::WeakOpen);
    if (!opened || !second.isAny(WordClass::WeakOpen | WordClass::StrongOpen) ||
        second.is(WordClass::Conference)) {
        return;
    }
    std::size_t end = begin + 1;
    while (end < tokens.size() && tokens[end].kind == Token::Kind::Other) {
        ++end;
    }
    if (end > begin + 1 && end < tokens.size() && tokens[end].is(WordClass::Conference)) {
        second.kind = Token::Kind::Other;
        second.classes = {};
        joinNext(tokens, begin);
    }
}

} // namespace

void splitKinds(const QString &text, Tokens &tokens)
{
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        if (!opensKind(text, tokens, at)) {
            continue;
        }
        std::size_t begin = at + 1;
        while (begin + 1 < tokens.size() &&
               (counts(text, tokens[begin]) || tokens[begin].kind == Token::Kind::Time)) {
            ++begin;
        }
        splitConference(text, tokens, begin);
        settleSecondVerb(text, tokens, begin);
    }
}

void settleKinds(const QString &text, Tokens &tokens)
{
    const auto timed = [](const Token &token) {
        return token.kind == Token::Kind::Time && !token.inTopic;
    };
    const bool dated = std::any_of(tokens.cbegin(), tokens.cend(), timed);
    constexpr WordClasses ordering =
        WordClass::StrongOpen | WordClass::WeakOpen | WordClass::Cancel | WordClass::Change;
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        const bool starts = at == 0 || isAtClauseEnd(tokens, at - 1);
        if (starts && !tokens[at].isAny(ordering)) {
            const std::size_t conference = conferenceOfKind(text, tokens, at);
            if (conference > at && isOpenedBehind(text, tokens, conference)) {
                markKind(tokens, at, conference, dated);
                at = conference;
                continue;
            }
        }
        if (!opensKind(text, tokens, at)) {
            continue;
        }
        std::size_t begin = at + 1;
        while (begin < tokens.size() &&
               (counts(text, tokens[begin]) || timed(tokens[begin]) ||
                (tokens[begin].length == 1 && text.at(tokens[begin].position) == QChar(u'的')))) {
            ++begin;
        }
        const std::size_t conference = conferenceOfKind(text, tokens, begin);
        markKind(tokens, begin, conference, dated);
        at = qMax(at, conference > begin ? conference : at);
    }
}

} // namespace understanding
