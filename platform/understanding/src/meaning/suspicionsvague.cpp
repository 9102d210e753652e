// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/suspicions.h"

#include "names/absences.h"
#include "text/characterset.h"
#include "text/scan.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

// The part of suspicions.h about what is left open.

namespace understanding {

bool namesNoConference(const Reading &reading)
{
    constexpr WordClasses meeting =
        WordClass::Conference | WordClass::Video | WordClass::ComeMeet | WordClass::Schedule;
    return !reading.hasAny(meeting);
}

bool asksWhetherMay(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    return text.endsWith(QChar(u'吧')) &&
           (text.contains(QStringLiteral("可以")) || text.contains(QStringLiteral("差不多")));
}

bool comesSomeDay(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    return reading.timeSaid().isEmpty() && !reading.has(WordClass::Request) &&
           firstOf(text, 0, {u"有空", u"得空", u"抽空", u"有时间", u"得闲"}) > 0;
}

bool alsoAddsFriend(const Reading &reading)
{
    return reading.has(WordClass::Add) && reading.has(WordClass::Buddy);
}

bool onlyNamesConference(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    return reading.openVerb().isEmpty() && reading.timeSaid().isEmpty() && !reading.has(WordClass::Request) &&
           std::any_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
               return token.is(WordClass::Conference) && charAt(text, token.position - 1) == QChar(u'的') &&
                      token.end() == text.size();
           });
}

bool onlyNamesRoom(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    bool room = false;
    bool conference = reading.hasAny(WordClass::Video | WordClass::ComeMeet);
    for (const Token &token : reading.tokens()) {
        const bool inRoom =
            charAt(text, token.end() - 1) == QChar(u'室') || charAt(text, token.end()) == QChar(u'室');
        room = room || (token.is(WordClass::Conference) && inRoom);
        conference = conference || (token.is(WordClass::Conference) && !inRoom);
    }
    return room && !conference;
}

bool isBusyThen(const Reading &reading)
{
    static const QStringList busy = {
        QStringLiteral("没空"), QStringLiteral("没时间"), QStringLiteral("有课"),
        QStringLiteral("有事"), QStringLiteral("出差"),   QStringLiteral("请假"),
        QStringLiteral("不在"), QStringLiteral("走不开"), QStringLiteral("值班")};
    const QString &text = reading.sentence().text();
    int timed = -1; // the time of the clause
    bool meets = false;
    bool found = false;
    for (const Token &token : reading.tokens()) {
        if (token.is(WordClass::Punctuation)) {
            const QString clause = timed < 0 ? QString() : text.mid(timed, token.position - timed);
            found = found || (!meets && std::any_of(busy.cbegin(), busy.cend(), [&](const QString &word) {
                        return clause.contains(word);
                    }));
            timed = -1;
            meets = false;
        } else if (token.kind == Token::Kind::Time && !token.time.isPastDay()) {
            timed = timed < 0 ? token.position : timed;
        }
        meets = meets || token.isAny(WordClass::Conference | WordClass::Video);
    }
    return found && reading.timeCount() == 1;
}

bool passesOn(const QString &text)
{
    return text.contains(QStringLiteral("转告")) || text.contains(QStringLiteral("回复")) ||
           text.contains(QStringLiteral("发给")) ||
           (text.contains(QStringLiteral("告诉")) && !text.contains(QStringLiteral("告诉我")));
}

bool leavesOpenWhoComes(const Reading &reading)
{
    static const QRegularExpression choosing(QStringLiteral(
        "[^,.;:](?:还是|或者|或是)|代替|[^你您请能]替(?![我咱你])|而不是|不[光仅止]|不但|除了"));
    // What is said before the order is told for another reason: 李工不在，加他进来.
    static const QRegularExpression absence(
        QStringLiteral("[^,.;:](?:%1|%2)[了吧啊呀的啦呢]*\\p{P}*$").arg(leftOutPattern(), busyPattern()));
    const QString &text = reading.sentence().text();
    const auto tells = [&](const QRegularExpression &pattern) {
        for (auto match = pattern.match(text); match.hasMatch();
             match = pattern.match(text, match.capturedEnd())) {
            const int end = match.capturedEnd();
            if (std::none_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
                    return token.inTopic && token.position < end && end <= token.end();
                })) {
                return true;
            }
        }
        return false;
    };
    static const CharacterSet needed(u"还或替而光仅止但除"); // the expression takes longer
    return !reading.names().empty() &&
           ((needed.meets(text) && tells(choosing)) || (hasWordOfAbsence(text) && tells(absence)));
}

bool alsoCalls(const Reading &reading)
{
    const auto leaving =
        std::find_if(reading.tokens().cbegin(), reading.tokens().cend(), [](const Token &token) {
            return token.isAny(WordClass::Close | WordClass::CloseAlone) && !token.inName;
        });
    return !reading.names().empty() && std::any_of(leaving, reading.tokens().cend(), [](const Token &token) {
        return token.isAny(WordClass::Pull | WordClass::Invite) && !token.is(WordClass::Separator);
    });
}

bool alsoInvites(const Reading &reading)
{
    return reading.has(WordClass::Invite);
}

} // namespace understanding
