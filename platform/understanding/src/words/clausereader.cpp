// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/clausereader.h"

#include "text/characterset.h"
#include "text/scan.h"
#include "words/framereader.h"
#include "words/joinreader.h"
#include "words/kindreader.h"
#include "words/questionreader.h"
#include "words/topicreader.h"

#include <algorithm>

namespace understanding {

namespace {

constexpr int LongestConferenceName = 8;
constexpr std::size_t FarthestConference = 30; // tokens behind its verb; keeps long sentences linear

bool isConference(const Token &token)
{
    return token.isAny(WordClass::Conference | WordClass::Video);
}

void makePlain(Token &token)
{
    token.kind = Token::Kind::Other;
    token.classes = WordClasses();
}

/// The first token from @p at on that is neither a filler nor asks, otherwise the last one.
std::size_t skipFillers(const Tokens &tokens, std::size_t at)
{
    while (at + 1 < tokens.size() && tokens[at].isAny(WordClass::Filler | WordClass::Question)) {
        ++at;
    }
    return at;
}

/// 会 is a conference unless it is "can" or "will": 会唱歌.
void settleConferences(const QString &text, Tokens &tokens)
{
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) { // 把这会停了, 这会差不多可以散了吧
        if (tokens[at].length == 2 && startsAt(text, tokens[at].position, QStringLiteral("这会")) &&
            tokens[skipFillers(tokens, at + 1)].isAny(WordClass::Close | WordClass::CloseAlone)) {
            tokens[at].classes.add(WordClass::Conference);
        }
    }
    static const CharacterSet mayFollow(u"的在要需得完没总定开");
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        Token &token = tokens[at];
        const bool room = token.is(WordClass::Conference) && text.at(token.end() - 1) == QChar(u'室') &&
                          charAt(text, token.end()) == QChar(u'的') &&
                          charAt(text, token.end() + 1) != QChar(u'会');
        if (room) { // 会议室的事, 会议室的钥匙
            makePlain(token);
        }
        if (token.length != 1 || !token.is(WordClass::Conference)) {
            continue;
        }
        const Token &next = tokens[at + 1];
        const bool verbFollows = (next.kind == Token::Kind::Other || next.is(WordClass::Plain)) &&
                                 !mayFollow.contains(text.at(next.position));
        const bool opened = at > 0 && tokens[at - 1].isAny(WordClass::WeakOpen | WordClass::Measure);
        if (verbFollows && !opened) {
            makePlain(token);
        }
    }
}

/// True if a conference follows the verb at @p verb, with only its description in between.
bool governsConference(const QString &text, const Tokens &tokens, std::size_t verb)
{
    bool described = false;
    for (std::size_t at = verb + 1; at < qMin(tokens.size(), verb + FarthestConference); ++at) {
        const Token &token = tokens[at];
        if (token.inTopic || (token.kind == Token::Kind::Space && described)) { // 开个 standup
            continue;
        }
        if (isConference(token)) {
            return !token.is(WordClass::Join); // 拉王姐进会
        }
        constexpr WordClasses describing =
            WordClass::NameTail | WordClass::Measure | WordClass::OpenParticle | WordClass::Filler |
            WordClass::Topic | WordClass::UnclearDay | WordClass::UnclearSoon | WordClass::Recurring |
            WordClass::Zone | WordClass::Lunar | WordClass::Festival | WordClass::Question;
        if (token.kind == Token::Kind::Time || token.kind == Token::Kind::Duration ||
            token.isAny(describing)) {
            described = true; // 开个讨论预算的会
            continue;
        }
        const bool companions =
            token.isAny(WordClass::Trigger | WordClass::Separator) || token.kind == Token::Kind::Name;
        if (described && companions) { // 开个和张伟的会
            continue;
        }
        // 约张伟明天的会: the only verb that takes people first.
        const bool meets = charAt(text, tokens[verb].position) == QChar(u'约') && tokens[verb].length == 1;
        if (meets && (companions || token.kind == Token::Kind::Other || token.kind == Token::Kind::Latin)) {
            continue;
        }
        const bool ownName = (token.kind == Token::Kind::Other || token.kind == Token::Kind::Number ||
                              token.kind == Token::Kind::Latin ||
                              (token.is(WordClass::Plain) && !token.is(WordClass::Join))) &&
                             token.length <= LongestConferenceName;
        // 组 in 开个数学组的短会
        const bool office = described && token.length == 1 && text.at(token.position) == QChar(u'组') &&
                            tokens[at - 1].kind == Token::Kind::Other;
        if (office) {
            continue;
        }
        if (ownName && (described || (at == verb + 1 && text.at(token.position) != QChar(u'的')))) {
            continue;
        }
        return false;
    }
    return false;
}

/// 上 in 约上: the verb acts on what stands before it.
bool isResultative(const QString &text, const Token &verb)
{
    static const CharacterSet results(u"来上好成下");
    return verb.length > 1 && results.contains(text.at(verb.end() - 1));
}

/// 帮我约: asks for what was said before.
bool isAskedFor(const QString &text, const Tokens &tokens, std::size_t verb)
{
    return isResultative(text, tokens[verb]) || (verb > 0 && tokens[verb - 1].is(WordClass::Request));
}

/// 项目周会，帮我建一下: the conference stands before its verb.
bool followsConference(const QString &text, const Tokens &tokens, std::size_t verb)
{
    std::size_t at = verb + 1;
    while (at < tokens.size() &&
           tokens[at].isAny(WordClass::Measure | WordClass::OpenParticle | WordClass::Filler)) {
        ++at;
    }
    const bool afterTime = verb > 0 && tokens[verb - 1].kind == Token::Kind::Time; // 复盘会，明天九点开
    if ((at == verb + 1 && !afterTime && !isAskedFor(text, tokens, verb)) || !isAtClauseEnd(tokens, at)) {
        return false;
    }
    for (std::size_t before = 0; before < verb; ++before) {
        if (tokens[before].is(WordClass::Join)) {
            return false; // 我要加入会议，帮我弄一下
        }
        if (tokens[before].is(WordClass::Conference)) {
            return true;
        }
    }
    return false;
}

bool isFollowedByDe(const QString &text, const Token &token)
{
    return charAt(text, token.end()) == QChar(u'的');
}

/// 该开会了，进我的会议: it is time for an existing conference.
bool isDue(const QString &text, const Tokens &tokens, std::size_t verb)
{
    static const CharacterSet dues(u"该要快");
    const std::size_t end = verb + 3;
    if (tokens.size() <= end || text.at(tokens[verb].position) != QChar(u'开') ||
        !dues.contains(charAt(text, tokens[verb].position - 1)) ||
        !tokens[verb + 1].is(WordClass::Conference) || text.at(tokens[verb + 2].position) != QChar(u'了') ||
        !isAtClauseEnd(tokens, end)) {
        return false;
    }
    const auto behind = tokens.cbegin() + static_cast<std::ptrdiff_t>(end);
    const bool joins = std::any_of(behind, tokens.cend(), [](const Token &token) {
        return token.isAny(WordClass::Join | WordClass::WeakJoin);
    });
    return joins && std::any_of(behind, tokens.cend(), [](const Token &token) {
               return token.is(WordClass::Mine) || token.kind == Token::Kind::Number;
           });
}

void settleOpening(const QString &text, Tokens &tokens)
{
    bool wanted = false; // by more than 把
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        Token &token = tokens[at];
        if (token.is(WordClass::StrongOpen)) {
            // 会议安排 is a noun; 预约的会议 exists already.
            const bool noun = isFollowedByDe(text, token) ||
                              (at > 0 && tokens[at - 1].is(WordClass::Conference) &&
                               token.is(WordClass::WeakTrigger) && isAtClauseEnd(tokens, at + 1));
            if (noun) {
                token.classes.remove(WordClass::StrongOpen);
            }
        }
        if (token.is(WordClass::GoverningOpen) && !governsConference(text, tokens, at)) {
            token.classes.remove(WordClass::GoverningOpen);
        }
        wanted = wanted || (token.is(WordClass::Request) && !token.is(WordClass::Trigger));
        const bool disposed = at > 1 && wanted && tokens[at - 1].is(WordClass::Conference) && // 把会开了
                              text.at(tokens[at - 2].end() - 1) == QChar(u'把') &&
                              startsAt(text, token.position, QStringLiteral("开了"));
        if (disposed) {
            token.classes = WordClass::WeakOpen;
        }
        // 开 in 明天十点跟戴总开, which answers a question, is not part of the name.
        const bool meets =
            at > 1 && token.is(WordClass::WeakOpen) && token.length == 1 &&
            text.at(token.position) == QChar(u'开') && isAtClauseEnd(tokens, at + 1) &&
            (tokens[at - 1].length > 1 || tokens[at - 1].is(WordClass::Title)) &&
            (tokens[at - 1].kind == Token::Kind::Other || tokens[at - 1].kind == Token::Kind::Name ||
             tokens[at - 1].is(WordClass::Title)) &&
            !followsConference(text, tokens, at);
        if (meets) {
            token.classes = WordClass::NameTail;
        }
        if (!token.is(WordClass::WeakOpen) || disposed) {
            continue;
        }
        const bool insideName = at > 1 && tokens[at - 1].kind == Token::Kind::Other &&
                                tokens[at - 1].length == 1 &&
                                tokens[at - 2].isAny(WordClass::Trigger | WordClass::Separator) &&
                                at + 1 < tokens.size() && tokens[at + 1].kind == Token::Kind::Other;
        // 请李静来一下会议室: somebody else comes.
        const bool comes =
            text.at(token.position) == QChar(u'来') && at > 0 &&
            (tokens[at - 1].kind == Token::Kind::Name || tokens[at - 1].kind == Token::Kind::Other);
        // 组 in 我们组例会 is who meets, 组 in 我们组个会 what they do.
        const bool group = text.at(token.position) == QChar(u'组') && at > 0 && at + 1 < tokens.size() &&
                           text.at(tokens[at - 1].end() - 1) == QChar(u'们') && isConference(tokens[at + 1]);
        if (group || insideName || isDue(text, tokens, at) ||
            (comes && startsAt(text, token.end(), QStringLiteral("一下"))) ||
            !(governsConference(text, tokens, at) || followsConference(text, tokens, at))) {
            token.classes.remove(WordClass::WeakOpen);
        }
    }
}

/// 到 in 加张伟到我的会议, 加入 in 把李娜加入我这个会: leads into the conference that follows, no matter
/// whose.
bool leadsIntoConference(const QString &text, const Tokens &tokens, std::size_t at)
{
    static const CharacterSet into(u"到进入来");
    constexpr WordClasses moving =
        WordClass::Filler | WordClass::Join | WordClass::WeakJoin | WordClass::WeakOpen;
    const bool moves = tokens[at].isAny(moving) && into.contains(text.at(tokens[at].end() - 1));
    if (!moves || tokens[at].inTopic) {
        return false;
    }
    constexpr std::size_t farthest = 7;
    constexpr WordClasses owning = WordClass::Mine | WordClass::Ongoing | WordClass::Nobody |
                                   WordClass::Measure | WordClass::Filler | WordClass::Next;
    for (std::size_t next = at + 1; next < qMin(tokens.size(), at + farthest); ++next) {
        if (tokens[next].is(WordClass::Conference)) {
            return next > at + 1;
        }
        if (!tokens[next].isAny(owning) && text.at(tokens[next].position) != QChar(u'的')) {
            return false;
        }
    }
    return false;
}

void settleArrivals(const QString &text, Tokens &tokens)
{
    bool called = false; // by a word that adds, with somebody behind it
    bool calling = false;
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        Token &token = tokens[at];
        const bool added = at == 1 && tokens[0].is(WordClass::Conference) && token.is(WordClass::Add) &&
                           token.is(WordClass::Trigger) && tokens.size() > 2 && // 会议加李雷
                           (tokens[2].kind == Token::Kind::Name || tokens[2].kind == Token::Kind::Latin ||
                            tokens[2].kind == Token::Kind::Other);
        if (added || (called && leadsIntoConference(text, tokens, at))) {
            token.classes.add(WordClass::Arrive);
        }
        const bool somebody = token.kind == Token::Kind::Name || token.kind == Token::Kind::Other ||
                              token.kind == Token::Kind::Latin;
        called = !token.is(WordClass::Punctuation) && (called || (calling && somebody));
        constexpr WordClasses adding = WordClass::Add | WordClass::Pull | WordClass::Invite;
        static const CharacterSet leads(u"把将拉带叫喊让请");
        calling = token.isAny(adding) ||
                  (token.is(WordClass::Trigger) && leads.contains(text.at(token.position))) ||
                  (calling && somebody);
    }
}

/// 把张伟请进会议 calls somebody in, 请进会议 only asks politely.
void settleCalls(const QString &text, Tokens &tokens)
{
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        static const CharacterSet between(u"也给都"); // 把张伟也请进来, 把张伟给请进来
        const bool also =
            at > 0 && tokens[at - 1].length == 1 && between.contains(text.at(tokens[at - 1].position));
        const std::size_t end = also ? at - 1 : at;
        const bool somebodyBefore =
            end > 0 &&
            (tokens[end - 1].kind == Token::Kind::Name || tokens[end - 1].kind == Token::Kind::Other ||
             tokens[end - 1].kind == Token::Kind::Latin ||
             tokens[end - 1].isAny(WordClass::Title | WordClass::NameTail));
        if (tokens[at].is(WordClass::Arrive) && text.at(tokens[at].position) == QChar(u'请') &&
            !somebodyBefore) {
            tokens[at].classes.remove(WordClass::Arrive);
        }
    }
}

/// 延期 in 项目延期了，明天三点开会: it is not the conference that is put off, as it is in 周会，延期了.
void settleDelays(const QString &text, Tokens &tokens)
{
    std::size_t change = tokens.size();
    bool conference = false; // in this clause, or its time
    bool before = false;     // the same in the clause before
    bool begins = true;      // nothing but adverbs so far
    for (std::size_t at = 0; at <= tokens.size(); ++at) {
        if (isAtClauseEnd(tokens, at)) {
            if (change < at && !conference && at + 1 < tokens.size()) {
                tokens[change].classes.remove(WordClass::Change);
            }
            before = conference;
            change = tokens.size();
            conference = false;
            begins = true;
            continue;
        }
        conference = conference || isConference(tokens[at]) || tokens[at].kind == Token::Kind::Time ||
                     firstOf(text, tokens[at].position, {u"时间", u"会"}) > 0 ||
                     (tokens[at].is(WordClass::Change) && begins && before);
        begins = begins && tokens[at].isAny(WordClass::Filler | WordClass::Next);
        if (tokens[at].is(WordClass::Change) && charAt(text, tokens[at].end()) == QChar(u'了')) {
            change = at;
        }
    }
}

/// 开到 in 三点开会，开到五点 says how long it takes; without a beginning it reports.
void settleEnds(const QString &text, Tokens &tokens)
{
    bool begun = false;
    for (Token &token : tokens) {
        if (begun && startsAt(text, token.position, QStringLiteral("开到")) && token.length == 2) {
            token.classes.remove(WordClass::Reported);
        }
        begun = begun || token.time.hasClock;
    }
}

/// 我想早点散会 is only a wish, 我想早点跟李娜开个会 an order.
void settleWishes(const QString &text, Tokens &tokens)
{
    constexpr WordClasses ordering =
        WordClass::Trigger | WordClass::Separator | WordClass::StrongOpen | WordClass::Measure;
    constexpr WordClasses ending = WordClass::Close | WordClass::CloseAlone | WordClass::Plain;
    WordClasses behind; // in the same clause
    for (std::size_t at = tokens.size(); at-- > 0;) {
        Token &token = tokens[at];
        const bool wished = token.is(WordClass::UnclearSoon) && text.at(token.position) == QChar(u'早') &&
                            charAt(text, token.position - 1) == QChar(u'想');
        if (wished && (!behind.intersects(ordering) || behind.intersects(ending))) {
            token.classes.add(WordClass::Framed);
        }
        if (isAtClauseEnd(tokens, at)) {
            behind = WordClasses();
        } else {
            behind.add(token.classes);
        }
    }
}

} // namespace

void settleWords(const QString &text, Tokens &tokens)
{
    settleQuestions(text, tokens);
    settleEnds(text, tokens);
    settleWishes(text, tokens);
    settleDelays(text, tokens);
    settleJoins(text, tokens);
    settleConferences(text, tokens);
    settleFrames(text, tokens);
    settleTopics(text, tokens);
    settleKinds(text, tokens);
    settleOpening(text, tokens);
    settleCalls(text, tokens);
    settleArrivals(text, tokens);
}

} // namespace understanding
