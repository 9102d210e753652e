// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/reading.h"

#include "names/addressed.h"
#include "names/framednames.h"
#include "names/groupwords.h"
#include "names/namecharacters.h"
#include "names/personwords.h"
#include "names/pronouns.h"
#include "text/characterset.h"
#include "text/chinesenumber.h"
#include "text/scan.h"
#include "words/clausereader.h"
#include "words/joinreader.h"
#include "words/kindreader.h"
#include "words/lexer.h"
#include "words/repairs.h"

#include <algorithm>
#include <numeric>

namespace understanding {

namespace {

constexpr int ShortestNumber = 3; // 3号会议室 holds no conference number

/// 今天 and 明天, 周五 and 下周一. 周三 and 25号 may be one day.
bool namesAnotherDay(const TimeExpression &one, const TimeExpression &other)
{
    if (one.day != other.day) {
        return false;
    }
    switch (one.day) {
    case TimeExpression::Day::Relative:
        return one.dayOffset != other.dayOffset;
    case TimeExpression::Day::Weekday:
        return one.weekday != other.weekday ||
               (one.weekNamed ? one.weekOffset : 0) != (other.weekNamed ? other.weekOffset : 0);
    default:
        return false;
    }
}

} // namespace

Reading::Reading(const QString &sentence, const ContactIndex &contacts) : m_sentence(sentence)
{
    m_tokens = tokenize(m_sentence.text(), contacts);
    applyRepairs(m_sentence.text(), m_tokens);
    settleInvitations(m_sentence.text(), m_tokens);
    settleAddress(m_sentence.text(), m_tokens);
    joinGroups(m_sentence.text(), m_tokens);
    joinPersonWords(m_sentence.text(), m_tokens);
    splitKinds(m_sentence.text(), m_tokens);
    joinFramedNames(m_sentence.raw(), m_sentence.text(), m_tokens);
    settleWords(m_sentence.text(), m_tokens);
    m_names = findNames(m_sentence.raw(), m_sentence.text(), m_tokens);
    m_elsewhere = findElsewhere(m_sentence.text());
    m_names.erase(std::remove_if(m_names.begin(), m_names.end(),
                                 [&](const FoundName &name) { return m_elsewhere.holds(name.start); }),
                  m_names.end());
    m_introduction = resolvePronouns(m_sentence.raw(), m_sentence.text(), m_tokens, m_names);
    markNames();
    collectClasses();
    dropTalkBesideConference();
    collectTimes();
    collectNumbers();
    collectOpenVerb();
}

Said Reading::part(int position, int length, const QString &normValue) const
{
    return {position, length, m_sentence.rawPart(position, length), normValue};
}

void Reading::markNames()
{
    auto name = m_names.cbegin();
    for (Token &token : m_tokens) {
        while (name != m_names.cend() && name->position + name->said.size() <= token.position) {
            ++name;
        }
        token.inName = name != m_names.cend() && name->start < token.end();
        token.inModifier = token.inName && token.end() <= name->position;
    }
}

bool Reading::namesOtherWeek() const
{
    static const CharacterSet others(u"下上过前隔最第");
    return std::any_of(m_tokens.cbegin(), m_tokens.cend(), [&](const Token &token) {
        return token.is(WordClass::UnclearDay) && others.contains(m_sentence.text().at(token.position));
    });
}

bool Reading::callsNobodyKnown() const
{
    return m_names.empty() && !has(WordClass::Nobody) &&
           std::any_of(m_tokens.cbegin(), m_tokens.cend(), [](const Token &token) {
               return token.isAny(WordClass::Arrive | WordClass::Pull) && token.length > 1 && !token.inTopic;
           });
}

bool Reading::namesOnlyOccasion(Occasions which) const
{
    static const QString daily = QStringLiteral("饭班休课觉睡");
    static const QString all = daily + QStringLiteral("线版布"); // 上线前, 发版后
    const QString &occasions = which == Occasions::Daily ? daily : all;
    return std::all_of(m_tokens.cbegin(), m_tokens.cend(), [&](const Token &token) {
        const auto first = m_sentence.text().cbegin() + token.position;
        return !token.is(WordClass::UnclearDay) ||
               std::any_of(first, first + token.length,
                           [&](QChar character) { return occasions.contains(character); });
    });
}

bool Reading::hasDoubtfulName() const
{
    return std::any_of(m_names.cbegin(), m_names.cend(), [](const FoundName &name) { return name.doubtful; });
}

bool Reading::isCalledAt(int position) const
{
    const auto behind = std::upper_bound(m_names.cbegin(), m_names.cend(), position,
                                         [](int at, const FoundName &name) { return at < name.start; });
    return behind != m_names.cbegin() && (behind - 1)->behindTrigger;
}

void Reading::collectClasses()
{
    for (const Token &token : m_tokens) {
        // 关羽 closes nothing.
        if (!token.inTopic && !token.inModifier && !(token.inName && token.length == 1)) {
            m_classes.add(token.classes);
        }
    }
}

/// 讨论 in 手术前讨论，下午一点半开会 only tells what the conference is about.
void Reading::dropTalkBesideConference()
{
    if (m_classes.intersects(WordClass::Conference | WordClass::Video)) {
        for (Token &token : m_tokens) {
            token.classes.remove(WordClass::Talk);
        }
        m_classes.remove(WordClass::Talk);
    }
}

/// 五点 in 三点开会，开到五点 and in 三点开会到五点.
bool Reading::isEnd(const Token &token) const
{
    const QStringRef before = m_sentence.text().midRef(0, token.position);
    return before.endsWith(QStringLiteral("开到")) || before.endsWith(QStringLiteral("会到"));
}

void Reading::collectTimes()
{
    for (const Token &token : m_tokens) {
        if ((token.kind != Token::Kind::Time && token.time.isEmpty()) || token.inTopic || token.inName) {
            continue;
        }
        const bool ends = token.time.hasClock && isEnd(token);
        m_endsOnly = m_endsOnly || (ends && !m_time.hasClock);
        if (ends && m_time.hasClock) {
            continue;
        }
        const bool again = m_time.hasClock && token.time.hasClock && m_time.hour == token.time.hour &&
                           m_time.minute == token.time.minute; // 明天三点，对，三点
        // 昨天的会没开完，明天三点接着开
        m_daysDiffer = m_daysDiffer || namesAnotherDay(m_time, token.time) ||
                       (token.time.hasOffset && (m_time.hasClock || m_time.part >= 0)); // 今早 ... 十五分钟后
        m_timeSaid += m_sentence.rawPart(token.position, token.length);
        if (m_timeCount == 0) {
            m_time = token.time;
        } else {
            m_time.complete(token.time);
        }
        ++m_timeCount;
        m_clockCount += token.time.hasClock && !again ? 1 : 0;
    }
    if (m_time.day == TimeExpression::Day::None) {
        collectSpan();
    }
}

/// 下周 in 下周和张伟开会, 下个月 in 下个月开会: a day that is said later is in this week or month.
void Reading::collectSpan()
{
    const QString &text = m_sentence.text();
    for (const Token &token : m_tokens) {
        if (!token.is(WordClass::UnclearDay) || text.at(token.position) != QChar(u'下')) {
            continue;
        }
        const int following = startsAt(text, token.position, QStringLiteral("下下")) ? 2 : 1;
        const int measure = token.position + following;
        const int span = charAt(text, measure) == QChar(u'个') ? measure + 1 : measure;
        if (firstOf(text, span, {u"周", u"星期", u"礼拜"}) > 0) {
            m_time.weekNamed = true;
            m_time.weekOffset = following;
        } else if (charAt(text, span) == QChar(u'月')) {
            m_time.monthNamed = true;
            m_time.monthOffset = following;
        }
    }
}

/// 加6入会议12345789, 加入66会议5556777: digits that stand elsewhere may belong to the number.
bool Reading::hasStrayDigits() const
{
    return std::any_of(m_tokens.cbegin(), m_tokens.cend(), [&](const Token &token) {
        const bool isTaken = token.position == m_number.position ||
                             (!m_password.isEmpty() && token.position == m_password.position);
        if (isTaken || token.inTopic || token.inName) {
            return false;
        }
        if (token.kind == Token::Kind::Number) {
            return true;
        }
        for (int at = token.position; token.kind == Token::Kind::Other && at < token.end(); ++at) {
            if (digitValue(m_sentence.text().at(at)) >= 0 &&
                !isKin(charAt(m_sentence.text(), at + 1))) { // 二姨
                return true;
            }
        }
        return false;
    });
}

Said Reading::digitsOf(const Token &token) const
{
    return part(token.position, token.length,
                digitString(m_sentence.text().mid(token.position, token.length)));
}

/// 会议号是12: said to be a number, however short.
bool Reading::isLabelled(std::size_t number) const
{
    std::size_t at = number;
    while (at > 0) {
        const Token &before = m_tokens[--at];
        if (before.isAny(WordClass::IdLabel | WordClass::Conference)) {
            return true;
        }
        if (!before.isAny(WordClass::LabelLink | WordClass::Punctuation) &&
            before.kind != Token::Kind::Space) {
            return false;
        }
    }
    return false;
}

int Reading::strangeLength() const
{
    return std::accumulate(m_tokens.cbegin(), m_tokens.cend(), 0, [](int length, const Token &token) {
        return length + (token.kind == Token::Kind::Other ? token.length : 0);
    });
}

/// 一二三百四: what touches a string of digits may belong to it.
bool Reading::isCutOff(std::size_t number) const
{
    static const CharacterSet mayFollow(u"的号是这那吧呢啊呀哦个会为和就给加进入我,");
    static const CharacterSet mayBelong(u"十百千万亿两俩廿卅点");
    const QString &text = m_sentence.text();
    const Token &token = m_tokens[number];
    if (number > 0 && m_tokens[number - 1].end() == token.position) {
        const Token &before = m_tokens[number - 1];
        const QChar last = text.at(before.end() - 1);
        const bool strange =
            before.kind == Token::Kind::Other && (!last.isLetter() || mayBelong.contains(last));
        if (strange || before.kind == Token::Kind::Latin || before.kind == Token::Kind::Time ||
            before.kind == Token::Kind::Duration) {
            return true;
        }
    }
    if (number + 1 == m_tokens.size() || m_tokens[number + 1].position != token.end()) {
        return false;
    }
    const Token &behind = m_tokens[number + 1];
    if (behind.is(WordClass::Punctuation)) {
        return number + 2 < m_tokens.size() && m_tokens[number + 2].kind == Token::Kind::Number &&
               m_tokens[number + 2].position == behind.end() &&
               (m_password.isEmpty() || m_password.position != behind.end());
    }
    return behind.kind == Token::Kind::Latin || behind.kind == Token::Kind::Time ||
           behind.kind == Token::Kind::Duration ||
           (behind.kind == Token::Kind::Other && !mayFollow.contains(text.at(behind.position)));
}

bool Reading::takePassword(std::size_t label)
{
    for (std::size_t at = label + 1; at < m_tokens.size(); ++at) {
        const Token &token = m_tokens[at];
        if (token.kind == Token::Kind::Number || token.kind == Token::Kind::Latin) {
            m_password = digitsOf(token);
            return true;
        }
        // 密码是一二: too short to be a number token.
        const int end = digitStringEnd(m_sentence.text(), token.position);
        if (token.kind == Token::Kind::Other && end > token.position) {
            m_password = part(token.position, end - token.position,
                              digitString(m_sentence.text().mid(token.position, end - token.position)));
            return true;
        }
        if (token.isAny(WordClass::IdLabel | WordClass::Conference | WordClass::Join |
                        WordClass::PasswordLabel)) { // 密码密码1234: the next label's
            return false;
        }
    }
    return false;
}

void Reading::collectNumbers()
{
    for (std::size_t at = 0; at < m_tokens.size() && m_password.isEmpty(); ++at) {
        if (m_tokens[at].is(WordClass::PasswordLabel)) {
            const bool behind = at > 1 && m_tokens[at - 2].kind == Token::Kind::Number && // 1122是密码
                                m_tokens[at - 1].position + 1 == m_tokens[at].position &&
                                m_sentence.text().at(m_tokens[at - 1].position) == QChar(u'是');
            if (behind) {
                m_password = digitsOf(m_tokens[at - 2]);
            } else {
                takePassword(at);
            }
        }
    }
    for (std::size_t at = 0; at < m_tokens.size(); ++at) {
        const Token &token = m_tokens[at];
        const bool isNumber = token.kind == Token::Kind::Number;
        const bool isPassword = !m_password.isEmpty() && token.position == m_password.position;
        if ((!isNumber && token.kind != Token::Kind::Latin) || isPassword || token.inTopic ||
            (isNumber && token.inName)) {
            continue;
        }
        if (m_account.isEmpty()) {
            m_account = digitsOf(token);
        }
        const bool isAccount = at > 0 && m_tokens[at - 1].is(WordClass::AccountLabel); // 工号1107
        if (isNumber && m_number.isEmpty() && !isAccount &&
            (token.length >= ShortestNumber || isLabelled(at))) {
            m_number = digitsOf(token);
            m_numberCutOff = isCutOff(at);
        }
    }
    m_numberCutOff = !m_number.isEmpty() && (m_numberCutOff || hasStrayDigits());
}

void Reading::collectOpenVerb()
{
    int best = 0;
    for (const Token &token : m_tokens) {
        constexpr WordClasses opening =
            WordClass::StrongOpen | WordClass::WeakOpen | WordClass::GoverningOpen;
        if (token.inTopic || !token.isAny(opening)) {
            continue;
        }
        static const CharacterSet pulling(u"约拉来");
        const bool pulls = token.length == 1 && pulling.contains(m_sentence.text().at(token.position));
        const int rank = token.is(WordClass::StrongOpen) ? 3 : pulls ? 1 : 2;
        if (rank > best) {
            best = rank;
            const bool once =
                token.length > 1 && QStringLiteral("下了").contains(m_sentence.text().at(token.end() - 1));
            const QChar last = m_sentence.text().at(token.end() - 1);
            const bool when = token.length > 2 && (last == QChar(u'到') || last == QChar(u'在'));
            const int length = once ? 1 : token.length - (when ? 1 : 0); // 约 in 约一下, 安排 in 安排到
            m_openVerb = part(token.position, length, m_sentence.rawPart(token.position, length));
        }
    }
    if (best > 0) {
        return;
    }
    // 上午的会，帮我约张伟: the verb takes people, the conference came before.
    for (const Token &token : m_tokens) {
        const bool meets = token.length == 1 && m_sentence.text().at(token.position) == QChar(u'约');
        if (meets && token.is(WordClass::Trigger) && !token.inTopic && has(WordClass::Conference)) {
            m_openVerb = part(token.position, 1, m_sentence.rawPart(token.position, 1));
            return;
        }
    }
    for (const Token &token : m_tokens) {
        const int open = m_sentence.text().indexOf(QChar(u'开'), token.position);
        if (token.is(WordClass::ComeMeet) && !token.inTopic && open >= 0 && open < token.end()) {
            m_openVerb = part(open, 1, m_sentence.rawPart(open, 1));
            return;
        }
    }
}

} // namespace understanding
