// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/clause.h"

#include "meaning/outcome.h"
#include "names/headreader.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/scan.h"
#include "words/lexicon.h"
#include "words/negation.h"

#include <algorithm>

namespace understanding {

Clause::Clause(const Reading &reading, const QString &intent, std::size_t begin, std::size_t end)
    : m_reading(reading)
    , m_tokens(reading.tokens())
    , m_intent(intent)
    , m_allowed(allowedWordsFor(intent))
    , m_begin(begin)
    , m_end(end)
    , m_isQuery(intent == QLatin1String(QueryConference))
    , m_firstSaid(end)
{
    survey();
}

bool Clause::isOrder() const
{
    if (m_intent == QLatin1String(EnterConferenceById)) { // 会议号我记得: neither the number nor a verb
        constexpr WordClasses joining = WordClass::Join | WordClass::WeakJoin | WordClass::PasswordLabel;
        return has(joining) || any([&](std::size_t at) { return m_tokens[at].kind == Token::Kind::Number; });
    }
    return has(m_allowed.anchors);
}

bool Clause::isTitle() const
{
    WordClasses verbs = m_allowed.anchors;
    verbs.remove(WordClass::Conference);
    return !has(verbs);
}

bool Clause::isRequested() const
{
    return has(WordClass::Request);
}

bool Clause::callsSomebody() const
{
    return any(
        [&](std::size_t at) { return m_tokens[at].inName && m_reading.isCalledAt(m_tokens[at].position); });
}

bool Clause::isSupposed() const
{
    // 老板约我明天开会: somebody else calls the speaker; 约我同事 calls somebody.
    static const QStringList calls = {QStringLiteral("约"), QStringLiteral("叫"), QStringLiteral("喊"),
                                      QStringLiteral("邀请"), QStringLiteral("通知")};
    constexpr WordClasses deeds = WordClass::WeakOpen | WordClass::StrongOpen | WordClass::Join |
                                  WordClass::WeakJoin | WordClass::ComeMeet | WordClass::Arrive |
                                  WordClass::Conference;
    const bool calledMyself = any([&](std::size_t at) {
        if (at + 2 >= m_end || !m_tokens[at + 1].is(WordClass::Nobody) ||
            !calls.contains(textOf(m_tokens[at])) || textOf(m_tokens[at + 1]) != QStringLiteral("我")) {
            return false;
        }
        const Token &next = m_tokens[at + 2];
        return !next.inName && (next.kind == Token::Kind::Time || next.isAny(deeds));
    });
    return calledMyself || has(WordClass::Framed);
}

bool Clause::isOnlySomebody() const
{
    const bool strange = any([&](std::size_t at) {
        const Token &token = m_tokens[at];
        return token.inName ||
               (token.kind != Token::Kind::Other && token.length > 1 && !token.is(WordClass::Title)) ||
               token.kind == Token::Kind::Time;
    });
    if (m_begin == m_end || strange) {
        return false;
    }
    const int start = m_tokens[m_begin].position;
    const QString text = m_reading.sentence().text().mid(start, m_tokens[m_end - 1].end() - start);
    const bool known = Lexicon::instance().longestAt(text, 0).length == text.size(); // 那个, 小艾
    const QString head = text.mid(modifierLength(text));                             // 对象李准基
    const bool address = m_tokens[m_begin].is(WordClass::Address);                   // 大哥
    const bool somebody =
        (isRelative(text) && !address) || (!known && (isPeople(text) || isPersonsName(head)));
    return somebody && !isAddressing();
}

bool Clause::tellsNumber() const
{
    constexpr WordClasses joining = WordClass::Join | WordClass::WeakJoin | WordClass::PasswordLabel;
    return m_intent == QLatin1String(EnterConferenceById) && has(WordClass::IdLabel) &&
           !m_reading.hasAny(joining) && !isUnderstood();
}

bool Clause::isAddressing() const
{
    static const CharacterSet serving(u"帮麻请给劳替");
    static const CharacterSet addressing(u"你您"); // 小李，你先退会吧 is said to somebody else
    const QString &text = m_reading.sentence().text();
    if (m_end + 1 >= m_tokens.size() || !m_tokens[m_end].is(WordClass::Punctuation)) {
        return false;
    }
    const int next = m_tokens[m_end + 1].position;
    return serving.contains(
        text.at(addressing.contains(text.at(next)) && next + 1 < text.size() ? next + 1 : next));
}

bool Clause::excludesSomebody() const
{
    return any([&](std::size_t at) {
        const Token &token = m_tokens[at];
        const bool negated = at > m_begin && isNegatedBefore(m_reading.sentence().text(), m_tokens, at);
        return negated && token.isAny(WordClass::Trigger | WordClass::Pull) && !token.inName;
    });
}

bool Clause::isTold() const
{
    const bool due = m_intent == QLatin1String(EnterMyConference) && has(WordClass::Reported) &&
                     !has(WordClass::Join | WordClass::WeakJoin | WordClass::Back); // 我的会到点了
    if (due) {
        return true;
    }
    return m_begin < m_end && isSomebody(m_tokens[m_begin]) && isOrder() && hasOtherSubject() && !isRefused();
}

bool Clause::isOnlyReported() const
{
    return isSupposed() && !isRequested() && !isNegated() && !isQuestion();
}

bool Clause::isReport() const
{
    return has(WordClass::Reported) && has(WordClass::Actor);
}

bool Clause::leavesOutSomebody() const
{
    std::size_t at = m_begin;
    while (at < m_end && (m_tokens[at].is(WordClass::Filler) || m_tokens[at].is(WordClass::Nobody))) {
        ++at;
    }
    if (at == m_end || m_tokens[at].kind != Token::Kind::Other || m_tokens[at].inName ||
        m_tokens[at].inTopic) {
        return false;
    }
    const QString said = textOf(m_tokens[at]);
    if (has(WordClass::GiveUp | WordClass::Negation)) { // 王磊就算了
        return false;
    }
    for (const int length : {2, 3}) {
        const QString name = said.left(length);
        if (said.size() >= length && isPersonsName(name) && !isThing(name) && !isThing(name.left(2))) {
            return true;
        }
    }
    return false;
}

bool Clause::isObjection() const
{
    return any([&](std::size_t at) {
               return m_tokens[at].is(WordClass::Negation) && !m_tokens[at].inName &&
                      firstOf(m_reading.sentence().text(), m_tokens[at].position,
                              {u"不同意", u"不让", u"不准", u"不许", u"不肯", u"不是我"}) > 0;
           }) ||
           any([&](std::size_t at) { // 人也到不齐
               return m_tokens[at].kind == Token::Kind::Other && !m_tokens[at].inName &&
                      textOf(m_tokens[at]).contains(QStringLiteral("不齐"));
           });
}

bool Clause::isTimeCutOff() const
{
    const bool timed = any([&](std::size_t at) { return m_tokens[at].kind == Token::Kind::Time; });
    return timed && any([&](std::size_t at) {
               return isPieceOfTime(at) || (m_tokens[at].kind == Token::Kind::Latin && !isExplained(at));
           });
}

bool Clause::isRefused() const
{
    return (isSupposed() &&
            !(m_isQuery && m_reading.has(WordClass::Query) && m_reading.has(WordClass::Request))) ||
           isNegated() || isSomebodyElses() || (!m_isQuery && has(WordClass::Reported)) || isQuestion();
}

bool Clause::isUnderstood() const
{
    return !hasOtherSubject() && !isPast() && !isStatement() && !isOnlyNumber() && !isOtherQuestion() &&
           !isAtOtherTime() && !isAboutRoom() && !any([&](std::size_t at) { return !isExplained(at); });
}

bool Clause::has(WordClasses classes) const
{
    return any([&](std::size_t at) { return m_tokens[at].isAny(classes) && !m_tokens[at].inName; });
}

bool Clause::isNegated() const
{
    bool negated = false;
    return any([&](std::size_t at) {
        negated = negated || m_tokens[at].is(WordClass::Negation);
        return negated && m_tokens[at].isAny(m_allowed.anchors);
    });
}

bool Clause::isSomebodyElses() const
{
    bool called = false;
    return any([&](std::size_t at) {
        const Token &token = m_tokens[at];
        constexpr WordClasses calling = WordClass::Trigger | WordClass::Pull | WordClass::NameLabel |
                                        WordClass::Separator | WordClass::StrongOpen | WordClass::WeakOpen |
                                        WordClass::GoverningOpen | WordClass::Join | WordClass::Close |
                                        WordClass::Add | WordClass::AccountLabel;
        const bool owner = charAt(m_reading.sentence().text(), token.end()) == QChar(u'的');
        const bool accounted =
            at + 1 < m_end && m_tokens[at + 1].isAny(WordClass::AccountLabel | WordClass::IdLabel);
        if (token.is(WordClass::Actor) && !called && !owner && !accounted) {
            return true;
        }
        called = called || token.isAny(calling);
        return false;
    });
}

bool Clause::isSomebody(const Token &token) const
{
    // 我 and everybody may be told to do something.
    static const CharacterSet addressed(u"我咱俺你您大各全所诸在本自谁一");
    return token.length > 1 && token.isAny(WordClass::Title | WordClass::Nobody) &&
           !token.isAny(WordClass::Address | WordClass::Buddy) &&
           !addressed.contains(m_reading.sentence().text().at(token.position));
}

bool Clause::hasOtherSubject() const
{
    constexpr WordClasses deeds = WordClass::StrongOpen | WordClass::WeakOpen | WordClass::Close |
                                  WordClass::CloseAlone | WordClass::Join | WordClass::Invite |
                                  WordClass::Add;
    constexpr WordClasses leads = WordClass::Trigger | WordClass::Pull | WordClass::Separator |
                                  WordClass::NameLabel | WordClass::Request | WordClass::Conference |
                                  WordClass::Video;
    const bool befriended = m_intent == QLatin1String(AddBuddy) && any([&](std::size_t at) {
                                return m_tokens[at].is(WordClass::Add) &&
                                       textOf(m_tokens[at]).endsWith(QChar(u'下')); // 同事加一下好友
                            });
    if (m_isQuery || befriended) {
        return false;
    }
    std::size_t subject = m_end;
    bool led = false; // by a word that calls, asks or says what is done
    bool joined = false; // 和, 要: 张三李四明天三点开会 is an order, 张三和李四明天开会 news
    return any([&](std::size_t at) {
        const Token &token = m_tokens[at];
        led = led || (!token.inName && (token.isAny(leads) || token.isAny(deeds)));
        if (subject == m_end && !led &&
            ((token.inName && isUncalled(token)) || isSomebody(token) ||
             (at == m_begin && isStranger(token) && !isGroupTitle(at)))) {
            subject = at;
        }
        static const CharacterSet joining(u"和跟与同约叫让喊");
        joined = joined || (subject < at && !token.inName &&
                            joining.contains(m_reading.sentence().text().at(token.position)));
        static const CharacterSet modals(u"要想会得");
        joined = joined || modals.contains(charAt(m_reading.sentence().text(), token.position - 1));
        const bool listed = m_reading.names().size() > 1 && !joined;
        return subject < at && !listed && !token.inName && token.isAny(m_allowed.anchors) &&
               token.isAny(deeds);
    });
}

bool Clause::isStranger(const Token &token) const
{
    return token.kind == Token::Kind::Other && isPersonsName(textOf(token));
}

bool Clause::isUncalled(const Token &name) const
{
    return m_begin == 0 || !m_reading.isCalledAt(name.position); // 和张三，李四，王五明天开会
}

bool Clause::isPast() const
{
    return !m_isQuery && any([&](std::size_t at) {
        return m_tokens[at].time.isPastDay() && !m_tokens[at].inModifier && !isModifying(at);
    });
}

bool Clause::isModifying(std::size_t pastDay) const
{
    const QString &text = m_reading.sentence().text();
    if (charAt(text, m_tokens[pastDay].end()) == QChar(u'的')) { // 昨天的会议
        return false;
    }
    bool joined = false; // 昨天进的会议是123456 only tells
    bool led = false;    // 昨天发起会议的张伟 orders nothing
    for (std::size_t at = m_begin; at < pastDay; ++at) {
        led = led || m_tokens[at].isAny(WordClass::Trigger | WordClass::Pull | WordClass::Add);
        joined = joined || m_tokens[at].isAny(WordClass::Join | WordClass::WeakJoin);
    }
    bool called = false; // 昨天和张伟开会的李娜
    for (std::size_t at = pastDay + 1; at < m_end; ++at) {
        if (charAt(text, m_tokens[at].position - 1) == QChar(u'的')) {
            const bool somebody = m_tokens[at].inName || m_tokens[at].kind == Token::Kind::Name;
            return (somebody && led && !called) || (joined && m_tokens[at].is(WordClass::Conference));
        }
        called = called || m_tokens[at].isAny(WordClass::Trigger | WordClass::Separator);
    }
    return false;
}

QString Clause::textOf(const Token &token) const
{
    return m_reading.sentence().text().mid(token.position, token.length);
}

bool Clause::isStatement() const
{
    const bool has = any([&](std::size_t at) {
        const bool lists = m_tokens[at].is(WordClass::Separator) && at + 1 < m_end &&
                           m_tokens[at + 1].inName; // 跟老柏还有小马碰一下
        return m_tokens[at].is(WordClass::Have) && !m_tokens[at].inName && !lists;
    });
    const bool tells = any([&](std::size_t at) { // 跟我开会的还有小马
        return at > m_begin + 1 && m_tokens[at].is(WordClass::Have) &&
               charAt(m_reading.sentence().text(), m_tokens[at].position - 1) == QChar(u'的') &&
               m_tokens[at - 2].is(WordClass::Conference);
    });
    return m_intent == QLatin1String(CreateConference) && (tells || (has && m_reading.openVerb().isEmpty()));
}

bool Clause::isOnlyNumber() const
{
    constexpr WordClasses joining = WordClass::Join | WordClass::WeakJoin | WordClass::Add |
                                    WordClass::PasswordLabel | WordClass::NoPassword;
    return m_intent == QLatin1String(EnterConferenceById) && !m_reading.hasAny(joining) &&
           std::none_of(m_tokens.cbegin(), m_tokens.cend(), // 会议号是123456吧 orders nothing
                        [&](const Token &token) {
                            return token.is(WordClass::Request) && textOf(token) != QStringLiteral("吧");
                        }) &&
           any([&](std::size_t at) {
               return m_tokens[at].is(WordClass::IdLabel) && at + 1 < m_end &&
                      textOf(m_tokens[at + 1]).endsWith(QChar(u'是'));
           });
}

bool Clause::isAtOtherTime() const
{
    return m_intent == QLatin1String(EnterConferenceById) && m_reading.clockCount() > 0;
}

} // namespace understanding
