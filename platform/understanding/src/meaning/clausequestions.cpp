// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/clause.h"

#include "meaning/outcome.h"
#include "meaning/suspicions.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/scan.h"

#include <algorithm>

// The part of Clause that recognises questions about something else and reports of what is over.

namespace understanding {

namespace {

constexpr WordClasses ListingWords =
    AskingWords | WordClass::AskedTime | WordClass::Schedule | WordClass::Next;

} // namespace

bool Clause::isOtherQuestion() const
{
    if (!m_isQuery) {
        return false;
    }
    const bool uncalled =
        m_begin < m_end && m_tokens[m_begin].inName && !m_reading.isCalledAt(m_tokens[m_begin].position);
    // 老板下午有会吗, 我们老板有会吗
    const std::size_t owner =
        m_begin < m_end && m_tokens[m_begin].is(WordClass::Nobody) ? m_begin + 1 : m_begin;
    const bool others = owner < m_end && has(WordClass::Have) && m_tokens[owner].is(WordClass::Title) &&
                        isSomebody(m_tokens[owner]);
    static const QStringList settling = {QStringLiteral("定在"), QStringLiteral("定于"),
                                         QStringLiteral("约在"), QStringLiteral("放在")};
    const bool settled = any([&](std::size_t at) { return settling.contains(textOf(m_tokens[at])); });
    // 要不要跟Eric开会, 开不开会都行
    const bool proposed = !m_reading.openVerb().isEmpty() &&
                          !m_reading.hasAny(WordClass::Query | WordClass::AskedTime) &&
                          (!m_reading.names().empty() || m_reading.timeCount() == 0);
    const bool reported =
        !m_reading.hasAny(AskingWords) && any([&](std::size_t at) { // 昨天的会没开完, not 没会
            const bool none = at + 1 < m_end && m_tokens[at + 1].is(WordClass::Conference) &&
                              m_end == m_tokens.size(); // 没会，可以睡懒觉
            return m_tokens[at].is(WordClass::Reported) && !none;
        });
    return uncalled || others || settled || proposed || reported || asksAboutConference() ||
           (has(WordClass::Have) && !m_reading.hasAny(ListingWords) && !m_reading.isAsked());
}

bool Clause::asksAboutConference() const
{
    constexpr WordClasses listing = WordClass::Have | WordClass::Question | WordClass::AskedTime |
                                    WordClass::Query | WordClass::Schedule | WordClass::Next;
    const QString &text = m_reading.sentence().text();
    const bool unlisted = has(WordClass::QuestionParticle) && !m_reading.hasAny(listing) &&
                          m_reading.openVerb().isEmpty(); // 明天的会重要吗
    bool conference = false;
    return unlisted ||
           std::any_of(m_tokens.cbegin() + static_cast<std::ptrdiff_t>(m_begin),
                       m_tokens.cbegin() + static_cast<std::ptrdiff_t>(m_end),
                       [&](const Token &token) {
                           const bool about = conference && token.is(WordClass::Topic) &&
                                              !token.is(WordClass::Query); // 会议讨论了什么
                           conference = conference || (token.is(WordClass::Conference) && !token.inTopic);
                           return about;
                       }) ||
           any([&](std::size_t at) {
               static const CharacterSet wanted(u"么啥少个些");
               const Token &token = m_tokens[at];
               const bool whoCame = token.is(WordClass::Join) && token.is(WordClass::Conference) &&
                                    charAt(text, token.end()) == QChar(u'了'); // 张伟进会了没
               if (whoCame || firstOf(text, token.position, {u"几个人", u"开没开"}) > 0) {
                   return true;
               }
               if (!token.is(WordClass::Question) || token.is(WordClass::AskedTime) ||
                   !wanted.contains(text.at(token.end() - 1))) {
                   return false;
               }
               const QChar next = charAt(text, token.end());
               const QChar room = at + 1 < m_end ? text.at(m_tokens[at + 1].end() - 1) : QChar();
               static const CharacterSet verbs(u"备带穿做干吃说讲聊谈用交写填");
               return next == QChar(u'人') || room == QChar(u'室') ||
                      verbs.contains(charAt(text, token.position - 1)); // 明天的会要准备什么
           });
}

bool Clause::isAboutRoom() const
{
    const QString &text = m_reading.sentence().text();
    const auto isRoom = [&](const Token &token) {
        return text.at(token.end() - 1) == QChar(u'室') || charAt(text, token.end()) == QChar(u'室');
    };
    const bool roomless = m_intent == QLatin1String(CreateConference) || m_isQuery ||
                          (m_intent == QLatin1String(EnterMyConference) && !m_reading.has(WordClass::Mine));
    return roomless && any([&](std::size_t at) {
               return m_tokens[at].is(WordClass::Conference) && isRoom(m_tokens[at]);
           }) &&
           !any([&](std::size_t at) {
               return m_tokens[at].is(WordClass::Conference) && !isRoom(m_tokens[at]);
           });
}

bool Clause::isQuestion() const
{
    constexpr WordClasses asking =
        WordClass::Question | WordClass::QuestionParticle | WordClass::AskedTime | WordClass::HowTo;
    const bool proposes = (m_intent == QLatin1String(CreateConference) && proposesOpening(m_reading)) ||
                          (m_intent == QLatin1String(CloseConference) && wonders(m_reading)); // asked about
    return !m_isQuery && has(asking) && !has(WordClass::Request) && !proposes;
}

bool Clause::tellsWhyCalled() const
{
    static const CharacterSet called(u"他她");
    const QString &text = m_reading.sentence().text();
    return m_begin + 1 < m_end && m_tokens[m_begin].is(WordClass::Actor) &&
           called.contains(text.at(m_tokens[m_begin].position)) &&
           startsAt(text, m_tokens[m_begin + 1].position, QStringLiteral("还没")) &&
           !has(WordClass::Negation);
}

bool Clause::isCalledAway() const
{
    static const CharacterSet calling(u"叫喊找让催约请");
    const QString &text = m_reading.sentence().text();
    bool somebody = false;
    for (std::size_t at = m_begin; at + 1 < m_end; ++at) {
        const Token &token = m_tokens[at];
        static const CharacterSet going(u"下去回来吃接拿上过"); // 我下楼 taken for a name
        const QString whom = textOf(m_tokens[at + 1]);
        const bool speaker = whom == QStringLiteral("我") ||
                             (whom.startsWith(QChar(u'我')) && whom.size() > 1 && going.contains(whom.at(1)));
        const bool called =
            token.is(WordClass::Trigger) && calling.contains(text.at(token.position)) && speaker;
        if (called && somebody) {
            return true;
        }
        if (token.isAny(WordClass::Request | WordClass::Trigger)) {
            return false;
        }
        const bool kin = at > m_begin && textOf(m_tokens[at - 1]) == QStringLiteral("我"); // 我妈
        somebody = somebody || token.kind == Token::Kind::Name ||
                   token.isAny(WordClass::Title | WordClass::Actor) ||
                   (token.kind == Token::Kind::Other && (kin || isPersonsName(textOf(token))));
    }
    return false;
}

bool Clause::isPolitelyRequested() const
{
    static const QStringList proposing = {QStringLiteral("咱们"), QStringLiteral("要不"),
                                          QStringLiteral("吧"),   QStringLiteral("我要"),
                                          QStringLiteral("我想"), QStringLiteral("我得")};
    return any([&](std::size_t at) {
        const Token &token = m_tokens[at];
        return token.is(WordClass::Request) && !token.inName && !proposing.contains(textOf(token));
    });
}

bool Clause::isAskedFor() const
{
    const QString &text = m_reading.sentence().text();
    bool conference = false;
    bool left = false; // 退了 in 退了这个会吧, which has not happened yet; 会议退了吧 may have
    return any([&](std::size_t at) {
        const Token &token = m_tokens[at];
        conference = conference || token.is(WordClass::Conference);
        left = left || (!conference && token.length == 2 && token.is(WordClass::Close) &&
                        text.at(token.end() - 1) == QChar(u'了'));
        if (!token.is(WordClass::Request) || token.inName) {
            return false;
        }
        static const CharacterSet disposing(u"把将请");
        const QChar last = text.at(token.end() - 1);
        const QString before = at > m_begin ? textOf(m_tokens[at - 1]) : QString();
        const bool byMyself = disposing.contains(last) && // 我把会议关了, 我请了李娜进会 only tell
                              (before == QStringLiteral("我") || before == QStringLiteral("我们"));
        return !byMyself && (left || textOf(token) != QStringLiteral("吧"));
    });
}

bool Clause::isSupposedDone() const
{
    constexpr WordClasses verbs =
        WordClass::WeakOpen | WordClass::Trigger | WordClass::Pull | WordClass::Invite | WordClass::Add;
    if (m_isQuery || m_intent == QLatin1String(CloseConference)) {
        return false;
    }
    return any([&](std::size_t at) {
        const int done = firstOf(m_reading.sentence().text(), m_tokens[at].position, {u"了吧"});
        const Token &before = m_tokens[at > m_begin ? at - 1 : at];
        const bool ordered = before.length == 1 && !before.inName && before.isAny(verbs);
        return done > 0 && at > m_begin && !ordered &&
               m_tokens[m_end - 1].end() == m_tokens[at].position + done;
    });
}

bool Clause::isFinished() const
{
    const QString &text = m_reading.sentence().text();
    const bool judged = m_isQuery && any([&](std::size_t at) { // 会开得怎么样
                            return text.midRef(m_tokens[at].position, m_tokens[at].length + 1)
                                .contains(QStringLiteral("开得"));
                        });
    if (judged) {
        return true;
    }
    if (m_isQuery && has(ListingWords)) { // 我查过会议了
        return any([&](std::size_t at) {
            const Token &token = m_tokens[at];
            static const CharacterSet looked(u"了过");
            const QChar next = charAt(text, token.end());
            return (token.is(WordClass::Query) && looked.contains(next)) ||
                   (token.is(WordClass::Schedule) && !m_reading.hasAny(AskingWords) && // 会议预约好了
                    startsAt(text, token.end(), QStringLiteral("好了")));
        });
    }
    if (isSupposedDone()) {
        return true;
    }
    if (isAskedFor()) {
        return false;
    }
    bool deed = false; // 行了 in 行了退会 finishes nothing
    return any([&](std::size_t at) {
        const Token &token = m_tokens[at];
        deed = deed || token.isAny(m_allowed.anchors) || token.is(WordClass::Trigger);
        if (!deed || (!token.isAny(m_allowed.anchors) && !token.is(WordClass::OpenParticle))) {
            return false;
        }
        static const CharacterSet done(u"了过");
        const bool purposeFollows = at + 1 < m_end && m_tokens[at + 1].inTopic; // 开会过报价
        return done.contains(text.at(token.end() - 1)) || textOf(token) == QStringLiteral("了吧") ||
               (token.end() < text.size() && !purposeFollows && done.contains(text.at(token.end())));
    });
}

} // namespace understanding
