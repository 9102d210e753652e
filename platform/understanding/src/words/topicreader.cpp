// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/topicreader.h"

#include "text/characterset.h"
#include "text/scan.h"

#include <algorithm>

namespace understanding {

namespace {

/// 需求评审安排到明天上午: the topic ends before its verb.
bool settlesTime(const QString &text, const Token &token)
{
    static const CharacterSet where(u"到在");
    return token.is(WordClass::StrongOpen) && token.length > 1 && where.contains(text.at(token.end() - 1));
}

/// 名称：复盘 时间：周五三点: what follows is no topic.
bool labelsTime(const QString &text, const Token &token)
{
    return token.is(WordClass::Filler) && firstOf(text, token.position, {u"时间", u"日期"}) > 0;
}

/// 说说 in 说说我明天的会: asks which conferences there are; no topic follows.
bool asksAtStart(const Tokens &tokens, std::size_t at)
{
    if (!tokens[at].is(WordClass::Query)) {
        return false;
    }
    constexpr WordClasses leading = WordClass::Filler | WordClass::Request | WordClass::Punctuation;
    for (std::size_t before = 0; before < at; ++before) {
        if (!tokens[before].isAny(leading)) {
            return false;
        }
    }
    for (std::size_t next = at + 1; !isAtClauseEnd(tokens, next); ++next) {
        if (tokens[next].is(WordClass::Conference)) {
            return true;
        }
    }
    return false;
}

/// True right behind 开会 and 开个会.
bool isBehindOpening(const Tokens &tokens, std::size_t at)
{
    if (at < 2 || !tokens[at - 1].is(WordClass::Conference) || tokens[at - 1].end() != tokens[at].position) {
        return false;
    }
    const bool measured = at > 2 && tokens[at - 2].is(WordClass::Measure);
    return tokens[measured ? at - 3 : at - 2].is(WordClass::WeakOpen);
}

/// 敲定 in 跟张伟开会敲定合同: what the conference is for, right behind it.
bool isPurpose(const QString &text, const Tokens &tokens, std::size_t at)
{
    if (!isBehindOpening(tokens, at) || tokens[at - 1].length != 1) {
        return false;
    }
    const int verb =
        firstOf(text, tokens[at].position,
                {u"敲定", u"确认", u"分析",   u"解决", u"处理", u"看看", u"看下", u"看一下", u"定一下",
                 u"定下", u"说下", u"说一下", u"对接", u"推进", u"核对", u"拍板", u"拟定",   u"制定",
                 u"修改", u"完善", u"审核",   u"演示", u"布置", u"落实", u"明确", u"评估",   u"规划",
                 u"答疑", u"汇总", u"回顾",   u"反馈", u"协调", u"商定"});
    const int behind = tokens[at].position + verb;
    return verb > 0 && behind < text.size() &&
           firstOf(text, behind, {u"了", u"过", u"完", u"得", u",", u"."}) == 0;
}

/// 对账 in 三点跟张伟开会对账: an unknown purpose, up to the end of the clause. What befalls people in a
/// conference (开会迟到了, 开会真累) is none.
bool isUnknownPurpose(const QString &text, const Tokens &tokens, std::size_t at)
{
    if (!isBehindOpening(tokens, at)) {
        return false;
    }
    constexpr WordClasses harmless =
        WordClass::WeakOpen | WordClass::Measure | WordClass::Plain | WordClass::Topic | WordClass::Filler;
    constexpr int longest = 8;
    const int begin = tokens[at].position;
    std::size_t end = at;
    while (!isAtClauseEnd(tokens, end) && tokens[end].length == 1 &&
           text.at(tokens[end].position) == QChar(u'对')) { // 对对账; it usually calls, 对张伟
        ++end;
    }
    while (
        !isAtClauseEnd(tokens, end) &&
        (tokens[end].kind == Token::Kind::Other ||
         (tokens[end].isAny(harmless) && !tokens[end].isAny(WordClass::Request | WordClass::UnclearSoon)))) {
        ++end;
    }
    const int length = tokens[end - 1].end() - begin;
    if (!isAtClauseEnd(tokens, end) || tokens[at].is(WordClass::Filler) || length < 2 || length > longest) {
        return false;
    }
    static const CharacterSet telling(u"了完得太真也在很好吗么呢吧啊没不又还都已着去来累烦困笑哭骂吵");
    const QString said = text.mid(begin, length);
    return std::none_of(said.cbegin(), said.cend(),
                        [](QChar character) { return telling.contains(character); }) &&
           said.indexOf(QChar(u'过'), 1) < 0 &&
           firstOf(text, begin, {u"迟到", u"早退", u"睡",   u"打瞌睡", u"打盹", u"走神", u"摸鱼",
                                 u"发呆", u"紧张", u"无聊", u"头疼",   u"头大", u"的",   u"时",
                                 u"前",   u"后",   u"中",   u"期间",   u"要",   u"会"}) == 0;
}

/// 一家人吃饭的时候 in 中午十二点一家人吃饭的时候开会: the hour is said, so that it only tells what goes on
/// then.
void settleOccasions(const QString &text, Tokens &tokens)
{
    constexpr WordClasses deeds = WordClass::Conference | WordClass::Join | WordClass::Close |
                                  WordClass::Arrive | WordClass::Punctuation | WordClass::Trigger |
                                  WordClass::Pull;
    std::size_t begin = tokens.size(); // behind the hour
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        if (tokens[at].time.hasClock) {
            begin = at + 1;
        } else if (tokens[at].isAny(deeds)) {
            begin = tokens.size();
        } else if (begin < at &&
                   text.midRef(tokens[at].position, tokens[at].length).endsWith(QStringLiteral("的时候"))) {
            std::for_each(tokens.begin() + static_cast<std::ptrdiff_t>(begin),
                          tokens.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                          [](Token &token) { token.inTopic = true; });
        }
    }
}

} // namespace

void settleTopics(const QString &text, Tokens &tokens)
{
    settleOccasions(text, tokens);
    bool inTopic = false;
    bool called = false; // right before
    bool timed = false;  // in this clause
    bool joined = false; // 跟张伟, in this clause
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        Token &token = tokens[at];
        const bool newTrigger =
            token.is(WordClass::Trigger) && !token.is(WordClass::WeakTrigger) && token.length > 1;
        if (token.is(WordClass::Conference) || token.is(WordClass::Punctuation) || newTrigger ||
            token.is(WordClass::NameLabel) || settlesTime(text, token) || labelsTime(text, token)) {
            inTopic = false;
        }
        inTopic =
            inTopic || isPurpose(text, tokens, at) || (timed && joined && isUnknownPurpose(text, tokens, at));
        timed = (timed || token.time.hasClock) && !token.is(WordClass::Punctuation);
        joined = (joined || token.is(WordClass::Trigger)) && !token.is(WordClass::Punctuation);
        token.inTopic = token.inTopic || inTopic;
        // 评审 in 邀请评审专家戚教授 describes who is called.
        if (token.is(WordClass::Topic) && !called && !asksAtStart(tokens, at)) {
            inTopic = true;
        }
        called = token.isAny(WordClass::Trigger | WordClass::Invite) && !token.is(WordClass::StrongOpen) &&
                 token.length > 1;
    }
}

} // namespace understanding
