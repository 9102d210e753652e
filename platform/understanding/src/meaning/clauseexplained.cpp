// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/clause.h"

#include "meaning/callings.h"
#include "meaning/outcome.h"
#include "names/namecharacters.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/chinesenumber.h"
#include "text/scan.h"

#include <algorithm>

// The part of Clause that decides which single words are understood.

namespace understanding {

void Clause::survey()
{
    constexpr WordClasses around = WordClass::Filler | WordClass::Address | WordClass::Request |
                                   WordClass::OpenParticle | WordClass::QuestionParticle |
                                   WordClass::NameTail;
    const QString &text = m_reading.sentence().text();
    for (std::size_t at = m_begin; at < m_end; ++at) {
        const Token &token = m_tokens[at];
        if (token.kind != Token::Kind::Space && !token.isAny(around) && !isNothing(token)) {
            m_firstSaid = qMin(m_firstSaid, at);
            m_lastSaid = at;
        }
        if (!token.inTopic &&
            (token.isAny(WordClass::IdLabel | WordClass::Conference) || token.kind == Token::Kind::Number) &&
            charAt(text, token.position - 1) == QChar(u'的')) {
            m_numberOwned = at;
        }
        for (int start = token.position; start < token.end(); ++start) { // 孩子哭了我先退会
            m_ownDeed = firstOf(text, start, {u"我先", u"我要", u"我得", u"我就"}) > 0 ? start : m_ownDeed;
        }
    }
}

bool Clause::isPreamble(std::size_t at) const
{
    if (m_intent == QLatin1String(CloseConference) && m_tokens[at].end() <= m_ownDeed) {
        return true;
    }
    for (std::size_t later = at + 1; later < qMin(m_end, at + 3); ++later) {
        if (m_tokens[later].is(WordClass::Request) && m_tokens[later].length > 1 &&
            charAt(m_reading.sentence().text(), m_tokens[later].position) == QChar(u'帮')) {
            return true;
        }
    }
    return false;
}

bool Clause::isOfName(std::size_t at) const
{
    const Token &token = m_tokens[at];
    const bool day = token.kind == Token::Kind::Time && !token.time.hasClock &&
                     token.time.day == TimeExpression::Day::DayOfMonth;
    const auto follows = [&](std::size_t next) {
        return next > m_begin && m_tokens[next - 1].inName;
    };
    return m_intent == QLatin1String(InviteConference) && (token.kind == Token::Kind::Number || day) &&
           !token.inName &&
           (follows(at) || (at > m_begin && m_tokens[at - 1].kind == Token::Kind::Space && follows(at - 1)));
}

bool Clause::isPieceOfTime(std::size_t at) const
{
    // 后个儿头晌: a day that was not read, right before a time.
    static const CharacterSet days(u"天日周晌个");
    const bool unreadDay = m_tokens[at].kind == Token::Kind::Other && !m_tokens[at].inName &&
                           at + 1 < m_end && m_tokens[at + 1].kind == Token::Kind::Time &&
                           days.contains(m_reading.sentence().text().at(m_tokens[at].end() - 1));
    if (unreadDay) {
        return true;
    }
    const Token &token = m_tokens[at];
    if (token.inName) {
        return false;
    }
    static const CharacterSet pieces(u"午点刻半");
    if (token.kind == Token::Kind::Other) {
        const QString text = textOf(token);
        return !text.contains(QLatin1Char('.')) &&
               std::any_of(text.cbegin(), text.cend(), [&](QChar character) {
                   return pieces.contains(character) || digitValue(character) >= 0;
               });
    }
    const bool cutOff = at > m_begin && m_tokens[at - 1].time.hasClock && // 一 in 十点一和张伟开会
                        m_tokens[at - 1].end() == token.position && textOf(token) == QStringLiteral("一");
    if (cutOff) {
        return true;
    }
    const bool behindTime = at == m_begin || m_tokens[at - 1].kind == Token::Kind::Time;
    const bool beforeTime = behindTime && at + 1 < m_end && m_tokens[at + 1].kind == Token::Kind::Time &&
                            m_tokens[at + 1].position == token.end();
    return beforeTime && firstOf(m_reading.sentence().text(), token.position, {u"下", u"上"}) == token.length;
}

bool Clause::isExplained(std::size_t at) const
{
    const Token &token = m_tokens[at];
    if (isOfName(at)) {
        return false;
    }
    if (isPieceOfTime(at) && !isTitleBeforeVerb(at)) { // but 二 in 二车间班前会
        return false;
    }
    switch (token.kind) {
    case Token::Kind::Latin: // an account, a password or a name; else nobody knows what
        return token.inName || m_intent == QLatin1String(AddBuddy) ||
               m_intent == QLatin1String(EnterConferenceById) || isDescription(at) || isBeforeConference(at);
    case Token::Kind::Word:
        return (m_isQuery && token.is(WordClass::Framed)) ||
               (m_isQuery && token.is(WordClass::Plain) &&
                m_reading.hasAny(WordClass::QuestionParticle | WordClass::Query)) ||
               token.inName || token.isAny(m_allowed.beside) || isNothing(token) || isDescription(at) ||
               isAddress(at) || (token.is(WordClass::Plain) && isGroupBeforeOpening(at));
    case Token::Kind::Other:
        return token.inName || isNothing(token) || isDescription(at) || isTitleBeforeVerb(at) ||
               isGroupBeforeOpening(at) || isOnlyTitle(at) || isPreamble(at) || isOfNumber(at) ||
               isOwnGroup(at) || (m_intent == QLatin1String(AddBuddy) && !m_reading.account().isEmpty());
    case Token::Kind::Number: // a date or an hour that was cut
        return token.inName || isDescription(at) ||
               (m_intent != QLatin1String(CreateConference) &&
                !(m_intent == QLatin1String(InviteConference) && token.length < ShortestAccount));
    case Token::Kind::Duration: // how long a new conference takes
        return m_intent == QLatin1String(CreateConference) ||
               (m_isQuery && m_reading.has(WordClass::Question) &&
                textOf(token) == QStringLiteral("一天")); // 今天一天有几个会
    default:
        return true;
    }
}

bool Clause::isAddress(std::size_t at) const
{
    if (!m_tokens[at].is(WordClass::Address)) {
        return false;
    }
    if (at > m_begin && m_tokens[at - 1].inName && m_tokens[at - 1].end() == m_tokens[at].position) {
        return true;
    }
    return at < m_firstSaid || at >= m_lastSaid;
}

bool Clause::isOfNumber(std::size_t at) const
{
    if (m_intent != QLatin1String(EnterConferenceById)) {
        return false;
    }
    // 跨年会议号202712310: which conference it is
    const QString said = textOf(m_tokens[at]);
    const bool titled = at + 1 < m_end &&
                        m_tokens[at + 1].isAny(WordClass::Conference | WordClass::IdLabel) &&
                        !said.endsWith(QChar(u'的')) && !isPersonsName(said) &&
                        m_reading.hasAny(WordClass::Join | WordClass::WeakJoin | WordClass::Arrive);
    return titled || at < m_numberOwned;
}

bool Clause::isTitleBeforeVerb(std::size_t at) const
{
    if (m_intent != QLatin1String(CreateConference) || m_tokens[at].kind != Token::Kind::Other) {
        return false;
    }
    constexpr std::size_t farthest = 6;
    constexpr WordClasses describing =
        WordClass::Title | WordClass::Plain | WordClass::Filler | WordClass::Topic | WordClass::Nobody;
    std::size_t next = at + 1;
    while (next < m_end && next < at + farthest && !m_tokens[next].is(WordClass::Conference) &&
           (m_tokens[next].kind == Token::Kind::Other || m_tokens[next].is(WordClass::WeakOpen) || // 新品打样
            (m_tokens[next].isAny(describing) && !m_tokens[next].is(WordClass::Request)))) {
        ++next;
    }
    QString said = textOf(m_tokens[at]);
    const bool owned = said.endsWith(QChar(u'的')); // 张伟的周会: who comes is not known
    said.chop(owned ? 1 : 0);
    if (next >= m_end || !m_tokens[next].is(WordClass::Conference) || (owned && isPersonsName(said))) {
        return false;
    }
    bool requested = false;
    for (++next; next < m_end && m_tokens[next].isAny(WordClass::Filler | WordClass::Request); ++next) {
        requested = requested || m_tokens[next].is(WordClass::Request);
    }
    // 赛前准备会给我定在周日
    const bool settled = next < m_end && firstOf(m_reading.sentence().text(), m_tokens[next - 1].position,
                                                 {u"定在", u"定到", u"定于", u"约在", u"放在"}) > 0;
    return requested && next < m_end &&
           (settled || m_tokens[next].isAny(WordClass::StrongOpen | WordClass::WeakOpen));
}

/// 小组, 车间, 党支部, 学生会, 高三.
static bool isGroup(const QString &said)
{
    static const CharacterSet schools(u"高初");
    const bool form = said.size() == 2 && schools.contains(said.at(0)) && digitValue(said.at(1)) > 0;
    static const QStringList unions = {QStringLiteral("委会"), QStringLiteral("员会"),
                                       QStringLiteral("学生会"), QStringLiteral("工会")}; // but not 不会
    const bool united =
        std::any_of(unions.cbegin(), unions.cend(), [&](const QString &end) { return said.endsWith(end); });
    const bool inside = said.size() > 1 && said.endsWith(QChar(u'里')); // 科里
    const int last = said.size() - (inside ? 2 : 1);
    static const CharacterSet places(u"场馆铺行村镇庭"); // 农场, 茶馆
    return form || united ||
           (said.size() > 1 && (endsGroup(said.at(last)) || places.contains(said.at(last))));
}

bool Clause::isGroupTitle(std::size_t at) const
{
    return isGroup(textOf(m_tokens[at])) && isTitleBeforeVerb(at);
}

bool Clause::isOwnGroup(std::size_t at) const
{
    const QString &text = m_reading.sentence().text();
    const Token &token = m_tokens[at];
    const QString said = textOf(token);
    const bool there = firstOf(text, token.end(), {u"那边", u"这边"}) > 0;
    if (m_isQuery) { // 今天车间还剩啥会没开, 大后天球队那边有会不
        return there || (isGroup(said) && said != QStringLiteral("公司")); // 公司年会什么时候
    }
    const bool begins = at == m_begin || m_tokens[at - 1].is(WordClass::Nobody) || // 咱农场
                        m_tokens[at - 1].isAny(WordClass::Filler | WordClass::Address);
    return m_intent == QLatin1String(CreateConference) && begins && isGroup(said) && at + 1 < m_end &&
           m_tokens[at + 1].kind == Token::Kind::Time && charAt(text, text.size() - 1) != QChar(u'了') &&
           any([&](std::size_t later) {
               return later > at && m_tokens[later].is(WordClass::WeakOpen) && later + 1 < m_end &&
                      m_tokens[later + 1].is(WordClass::Measure);
           });
}

bool Clause::isGroupBeforeOpening(std::size_t at) const
{
    constexpr int longest = 6;
    const std::vector<FoundName> &names = m_reading.names();
    const QString &text = m_reading.sentence().text();
    if (m_intent != QLatin1String(CreateConference) || at == m_begin || !m_tokens[at - 1].time.hasClock ||
        names.empty() || names.front().position < m_tokens[at].position ||
        !m_reading.isCalledAt(names.front().position) || text.endsWith(QChar(u'了'))) {
        return false;
    }
    const int start = m_tokens[at].position;
    std::size_t verb = at + 1;
    while (verb < m_end && m_tokens[verb].position - start <= longest && !m_tokens[verb].inName &&
           (m_tokens[verb].kind == Token::Kind::Other || m_tokens[verb].is(WordClass::Plain) ||
            isNothing(m_tokens[verb]))) {
        ++verb;
    }
    std::size_t conference = verb + 1;
    while (conference < m_end &&
           (m_tokens[conference].is(WordClass::Measure) || m_tokens[conference].inTopic ||
            m_tokens[conference].kind == Token::Kind::Other)) { // 开个病例讨论会
        ++conference;
    }
    return conference < m_end && m_tokens[verb].is(WordClass::WeakOpen) &&
           m_tokens[conference].is(WordClass::Conference) &&
           isGroup(text.mid(start, m_tokens[verb].position - start));
}

bool Clause::isOnlyTitle(std::size_t at) const
{
    return m_intent == QLatin1String(CreateConference) && at == m_begin && at + 2 == m_end && at > 0 &&
           m_tokens[at].kind == Token::Kind::Other && m_tokens[at + 1].is(WordClass::Conference) &&
           !m_tokens[at + 1].is(WordClass::Join) && !m_reading.names().empty() &&
           m_reading.clockCount() > 0 &&
           std::none_of(m_tokens.cbegin(), m_tokens.cend(),
                        [](const Token &token) { return token.time.isPastDay(); });
}

bool Clause::isBeforeConference(std::size_t at) const
{
    constexpr std::size_t farthest = 6;
    for (std::size_t next = at + 1; next < qMin(m_end, at + farthest); ++next) {
        const Token &token = m_tokens[next];
        if (token.is(WordClass::Conference)) {
            return true;
        }
        if (token.kind != Token::Kind::Space && token.kind != Token::Kind::Latin &&
            token.kind != Token::Kind::Other) {
            return false;
        }
    }
    return false;
}

bool Clause::isDescription(std::size_t at) const
{
    constexpr WordClasses verbs = WordClass::StrongOpen | WordClass::WeakOpen | WordClass::GoverningOpen |
                                  WordClass::Join | WordClass::WeakJoin;
    constexpr std::size_t farthest = 6;
    if (at > m_begin && m_tokens[at - 1].is(WordClass::Video) && m_tokens[at].kind == Token::Kind::Other) {
        return true;
    }
    std::size_t next = at + 1;
    while (
        next < m_end && next < at + farthest &&
        (m_tokens[next].isAny(WordClass::Measure | WordClass::Title | WordClass::Plain | WordClass::Filler) ||
         m_tokens[next].kind == Token::Kind::Other || isNothing(m_tokens[next]) ||
         (m_tokens[next].kind == Token::Kind::Time && !m_tokens[next].time.hasClock &&
          charAt(m_reading.sentence().text(), m_tokens[next].position - 1) ==
              QChar(u'的')))) { // 产品部的周五晨会
        ++next;
    }
    if (next >= m_end || !m_tokens[next].is(WordClass::Conference)) {
        return false;
    }
    for (std::size_t before = at; before > m_begin && at - before < farthest; --before) {
        if (m_tokens[before - 1].isAny(verbs)) {
            return true;
        }
    }
    return false;
}

bool Clause::isNothing(const Token &token) const
{
    if ((token.kind != Token::Kind::Other && token.kind != Token::Kind::Word)) {
        return false;
    }
    if (token.kind == Token::Kind::Word && token.classes.isEmpty()) {
        return true; // 创建 in 我创建的会议, settled to be no verb
    }
    const auto first = m_reading.sentence().text().cbegin() + token.position;
    return std::all_of(first, first + token.length,
                       [&](QChar character) { return m_allowed.light.contains(character); });
}

} // namespace understanding
