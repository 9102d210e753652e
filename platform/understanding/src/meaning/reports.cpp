// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/reports.h"

#include "meaning/allowedwords.h"
#include "meaning/outcome.h"
#include "text/characterset.h"
#include "text/scan.h"

#include <algorithm>

namespace understanding {

bool tellsBeginning(const Reading &reading)
{
    const QString begins = QStringLiteral("开始");
    const bool opened = !reading.openVerb().isEmpty() && reading.openVerb().normValue != begins;
    if (opened || reading.has(WordClass::Request)) {
        return false;
    }
    const Tokens &tokens = reading.tokens();
    bool conference = false; // in the same clause
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        conference =
            (conference || tokens[at].is(WordClass::Conference)) && !tokens[at].is(WordClass::Punctuation);
        if (conference && tokens[at].length == begins.size() && textOf(reading, tokens[at]) == begins &&
            isAtClauseEnd(tokens, at + 1)) {
            return true;
        }
    }
    return false;
}

bool tellsWhen(const Reading &reading)
{
    constexpr WordClasses wanting =
        WordClass::Query | WordClass::Schedule | WordClass::Have | WordClass::AskedTime | WordClass::Question;
    if (!reading.openVerb().isEmpty()) {
        return false;
    }
    const Tokens &tokens = reading.tokens();
    const QString &text = reading.sentence().text();
    const bool served = std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        return token.is(WordClass::Request) && textOf(reading, token) != QStringLiteral("吧");
    });
    const bool asks = std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        return token.isAny(wanting) && textOf(reading, token) != QStringLiteral("是不是");
    });
    if (served || asks) {
        return false;
    }
    for (std::size_t at = 0; at + 2 < tokens.size(); ++at) {
        if (!tokens[at].is(WordClass::Conference) || tokens[at].inTopic) {
            continue;
        }
        int end = tokens[at].end();
        end += firstOf(text, end, {u"应该", u"好像", u"可能", u"大概"});
        const int link =
            firstOf(text, end, {u"是不是在", u"是不是", u"就是在", u"就是", u"是在", u"就在", u"是", u"在"});
        std::size_t next = at + 1;
        while (next < tokens.size() && tokens[next].position < end + link) {
            ++next;
        }
        const bool timed = next < tokens.size() && tokens[next].kind == Token::Kind::Time;
        if (link > 0 && timed) {
            return true;
        }
    }
    return false;
}

bool tellsWhoseNumber(const Reading &reading)
{
    const int end = reading.conferenceNumber().position + reading.conferenceNumber().length;
    return !reading.conferenceNumber().isEmpty() && reading.has(WordClass::IdLabel) &&
           !reading.hasAny(WordClass::Join | WordClass::WeakJoin | WordClass::Request) &&
           charAt(reading.sentence().text(), end) == QChar(u'是');
}

bool reminds(const Reading &reading)
{
    static const QStringList reminders = {QStringLiteral("记得"), QStringLiteral("别忘"),
                                          QStringLiteral("不要忘")};
    const Tokens &tokens = reading.tokens();
    std::size_t at = 0;
    while (at < tokens.size() && tokens[at].length == 1 && tokens[at].is(WordClass::Filler)) { // 那
        ++at;
    }
    return at < tokens.size() && !reading.has(WordClass::Request) && reading.names().empty() &&
           std::any_of(reminders.cbegin(), reminders.cend(),
                       [&](const QString &word) { return textOf(reading, tokens[at]).contains(word); });
}

bool onlySpeaksOf(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    const bool nextTime = text.startsWith(QStringLiteral("下次")) || text.startsWith(QStringLiteral("下回"));
    if (reading.has(WordClass::Request) ||
        (!reading.names().empty() && !(nextTime && reading.timeSaid().isEmpty()))) {
        return false;
    }
    const bool bare = reading.openVerb().isEmpty() && text.startsWith(QStringLiteral("会议")) &&
                      !text.startsWith(QStringLiteral("会议预"));
    if (!reading.timeSaid().isEmpty()) {
        return bare && reading.tokens().size() <= 3;
    }
    return text.contains(QStringLiteral("下次")) || text.contains(QStringLiteral("有空")) ||
           text.contains(QStringLiteral("会别")) || text.startsWith(QStringLiteral("我先"));
}

bool tellsAgreement(const Reading &reading)
{
    static const QStringList agreed = {
        QStringLiteral("约好"), QStringLiteral("约定"),   QStringLiteral("定好"),   QStringLiteral("说好"),
        QStringLiteral("讲好"), QStringLiteral("谈好"),   QStringLiteral("说定"),   QStringLiteral("敲定"),
        QStringLiteral("谈妥"), QStringLiteral("商量好"), QStringLiteral("商量定"), QStringLiteral("沟通好")};
    if (reading.has(WordClass::Request)) {
        return false;
    }
    const QString &text = reading.sentence().text();
    const std::vector<FoundName> &names = reading.names();
    return std::any_of(names.cbegin(), names.cend(), [&](const FoundName &name) {
        const int end = name.position + name.said.size();
        return std::any_of(agreed.cbegin(), agreed.cend(), [&](const QString &word) {
            return startsAt(text, end, word) || // 张伟敲定 may be taken for a name
                   (name.said.endsWith(word) && name.said.size() > word.size() + 1);
        });
    });
}

bool tellsWhatWasSet(const Reading &reading)
{
    static const CharacterSet settling(u"约定订");
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    if (text.contains(QStringLiteral("来着"))) {
        return true;
    }
    return std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        if (token.kind != Token::Kind::Time) {
            return false;
        }
        int end = token.position;
        end -= charAt(text, end - 1) == QChar(u'是') ? 1 : 0;
        return charAt(text, end - 1) == QChar(u'的') && settling.contains(charAt(text, end - 2));
    });
}

bool statesWhatIs(const Reading &reading)
{
    constexpr WordClasses conference =
        WordClass::WeakOpen | WordClass::StrongOpen | WordClass::Conference | WordClass::ComeMeet;
    static const CharacterSet links(u"和跟与同");
    static const CharacterSet subjects(u"我咱们俩也在"); // 我现在是三点开会
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    bool ofConference = false; // the rest of the clause: 是三点开会, unlike 明天是周二，帮我约个会
    for (std::size_t at = tokens.size(); at-- > 1;) {
        const Token &token = tokens[at];
        ofConference = (ofConference || token.isAny(conference)) && !token.is(WordClass::Punctuation);
        const bool begins =
            token.kind == Token::Kind::Time || (token.length == 1 && links.contains(text.at(token.position)));
        const int copula = token.position - 1;
        if (!ofConference || !begins || text.at(copula) != QChar(u'是')) {
            continue;
        }
        const bool behindTime =
            tokens[at - 1].length == 1 && at > 1 && tokens[at - 2].kind == Token::Kind::Time; // 明天是和
        if (copula == 0 || behindTime || subjects.contains(text.at(copula - 1))) {
            return true;
        }
    }
    const std::vector<FoundName> &names = reading.names(); // 我和张伟是三点开会
    return std::any_of(names.cbegin(), names.cend(),
                       [](const FoundName &name) { return name.name.endsWith(QChar(u'是')); });
}

/// 让他们俩开会, 叫他们三点开会: people who have not been named.
static bool sendsUnnamed(const Reading &reading)
{
    constexpr WordClasses opens = WordClass::WeakOpen | WordClass::StrongOpen | WordClass::ComeMeet;
    static const CharacterSet calls(u"让叫请喊");
    static const CharacterSet few(u"俩两三几个");
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 1; reading.names().empty() && at < tokens.size(); ++at) {
        const int start = tokens[at].position;
        const int pronoun = firstOf(text, start, {u"他们", u"她们", u"他俩", u"她俩"});
        if (pronoun == 0 || !calls.contains(text.at(start - 1))) {
            continue;
        }
        int end = start + pronoun;
        while (end < text.size() && few.contains(text.at(end))) {
            ++end;
        }
        std::size_t next = at;
        while (next < tokens.size() &&
               (tokens[next].position < end || tokens[next].kind == Token::Kind::Time)) {
            ++next;
        }
        if (next < tokens.size() && tokens[next].isAny(opens)) {
            return true;
        }
    }
    return false;
}

bool sendsOthersOnly(const Reading &reading)
{
    if (sendsUnnamed(reading)) {
        return true;
    }
    const QString &text = reading.sentence().text();
    const std::vector<FoundName> &names = reading.names();
    const bool alone = std::any_of(names.cbegin(), names.cend(), [&](const FoundName &name) {
        return startsAt(text, name.position + name.said.size(), QStringLiteral("自己"));
    });
    return alone || firstOf(text, 0, {u"你和", u"你跟", u"你与", u"你同", u"您和", u"您跟"}) > 0;
}

/// True for a time that is not now: 明天, 十分钟后, 三点; not for 今天 and 昨天.
static bool isAhead(const TimeExpression &time)
{
    const bool otherDay = time.day != TimeExpression::Day::None && !time.isPastDay() &&
                          (time.day != TimeExpression::Day::Relative || time.dayOffset > 0);
    return time.hasClock || time.hasOffset || time.part >= 0 || otherDay;
}

bool isForLater(const Reading &reading, const QString &intent)
{
    static const QStringList atOnce = {QLatin1String(CloseConference), QLatin1String(InviteConference),
                                       QLatin1String(EnterConferenceById), QLatin1String(AddBuddy)};
    if (!atOnce.contains(intent)) {
        return false;
    }
    const WordClasses deeds = allowedWordsFor(intent).anchors;
    bool later = false;
    bool onlyTime = true; // 过一会儿，把会议关了; but not 我三点有事，先退会
    for (const Token &token : reading.tokens()) {
        if (token.is(WordClass::Punctuation)) {
            later = later && onlyTime;
            onlyTime = true;
            continue;
        }
        if (token.inTopic || token.inName) {
            onlyTime = false;
            continue;
        }
        const bool soon = token.is(WordClass::UnclearSoon);
        if (later && !soon && token.isAny(deeds)) {
            return true;
        }
        later = later || soon || (token.kind == Token::Kind::Time && isAhead(token.time));
        onlyTime = onlyTime && (soon || token.kind == Token::Kind::Time || token.is(WordClass::Filler));
    }
    return false;
}

} // namespace understanding
