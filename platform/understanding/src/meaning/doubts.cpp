// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/doubts.h"

#include "meaning/outcome.h"
#include "meaning/reports.h"
#include "meaning/suspicions.h"
#include "names/headreader.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/scan.h"

#include <QHash>
#include <QVector>

#include <algorithm>

namespace understanding {

namespace {

/// 明天开会谁主持, 是谁约的会, 你建还是我建: asks who does it, wherever that stands.
bool asksWho(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    const int other = text.indexOf(QChar(u'你'));
    if (other >= 0 && text.indexOf(QStringLiteral("还是我"), other) > other) {
        return true;
    }
    return std::any_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
        return token.is(WordClass::Actor) && !token.inTopic && !token.inName &&
               (textOf(reading, token).contains(QChar(u'谁')) ||
                textOf(reading, token) == QStringLiteral("哪位"));
    });
}

/// 明天会议几个人参加 asks how many come.
bool asksHowMany(const Reading &reading)
{
    return std::any_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
        return !token.inName &&
               firstOf(reading.sentence().text(), token.position, {u"几个人", u"几人", u"多少人"}) > 0;
    });
}

/// 开个会，请媳妇参加: somebody is called who was not found.
bool callsStranger(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 1; at + 1 < tokens.size(); ++at) {
        const Token &token = tokens[at];
        const bool strange = token.kind == Token::Kind::Other && token.length > 1 && !token.inTopic;
        if (strange && !token.inName && tokens[at - 1].is(WordClass::Trigger) && !tokens[at - 1].inName &&
            tokens[at + 1].isAny(WordClass::Join | WordClass::Arrive)) {
            return true;
        }
    }
    return false;
}

/// 宋阳那边三点方便，帮我约个会 and 约个蔡小明的会: somebody is mentioned who was not found.
bool mentionsStranger(const Reading &reading)
{
    constexpr int shortest = 2;
    constexpr int longest = 3;
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const Token &token = tokens[at];
        if (token.kind != Token::Kind::Other || token.inName || token.inTopic) {
            continue;
        }
        const bool begins = at == 0 || tokens[at - 1].is(WordClass::Punctuation);
        const bool ofConference = at + 1 < tokens.size() && tokens[at + 1].is(WordClass::Conference) &&
                                  token.length == longest + 1 && text.at(token.end() - 1) == QChar(u'的');
        for (int length = shortest; length <= longest; ++length) {
            const bool there =
                begins && firstOf(text, token.position + length, {u"那边", u"这边", u"那儿"}) > 0;
            const QString said = text.mid(token.position, length);
            if ((there || (ofConference && length == longest)) && isPersonsName(said) && !isThing(said)) {
                return true;
            }
        }
    }
    return false;
}

/// 让财务把钱打过来, 叫小王把报告发我: somebody is told to do something else.
bool sendsSomebody(const Reading &reading)
{
    static const QStringList calls = {QStringLiteral("让"),  QStringLiteral("叫"),   QStringLiteral("请"),
                                      QStringLiteral("喊"),  QStringLiteral("通知"), QStringLiteral("找"),
                                      QStringLiteral("联系")};
    static const QStringList does = {QStringLiteral("把"),  QStringLiteral("将"),   QStringLiteral("给"),
                                     QStringLiteral("帮"),  QStringLiteral("给我"), QStringLiteral("帮我"),
                                     QStringLiteral("替我")};
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        if (tokens[at].inName || !tokens[at].is(WordClass::Trigger) ||
            !calls.contains(textOf(reading, tokens[at]))) {
            continue;
        }
        std::size_t next = at + 1;
        while (next < tokens.size() && (tokens[next].inName || tokens[next].is(WordClass::Title))) {
            ++next;
        }
        if (next > at + 1 && next < tokens.size() && does.contains(textOf(reading, tokens[next]))) {
            return true;
        }
    }
    return false;
}

/// Somebody and nothing else: 李娜, Tom, 老婆, but not 李娜起床.
bool isClearlySomebody(const QString &name)
{
    return isPersonsName(name) || name.at(0).unicode() < 0x250 || name.contains(QChar(u'·')) ||
           isTransliterated(name) || name.size() == 2 || isModifier(name);
}

/// 通知张伟交周报, 请李娜介绍一下, 拉李娜一把: nothing says that it is about a conference, and more follows.
bool callsForNothing(const Reading &reading)
{
    constexpr WordClasses conference = WordClass::Conference | WordClass::Arrive | WordClass::Join |
                                       WordClass::WeakJoin | WordClass::Invite | WordClass::InviteNoun |
                                       WordClass::ComeMeet | WordClass::Video | WordClass::Add;
    const std::vector<FoundName> &names = reading.names();
    if (names.empty() || reading.hasAny(conference)) {
        return false;
    }
    const bool clear = std::all_of(names.cbegin(), names.cend(),
                                   [](const FoundName &name) { return isClearlySomebody(name.name); });
    static const CharacterSet telling(u"通让请联找");
    bool told = false;
    bool furtherDeed = false; // behind the last name
    const int end = names.back().position + names.back().said.size();
    static const CharacterSet deeds(u"等稍先别把");
    for (const Token &token : reading.tokens()) {
        const QChar first = reading.sentence().text().at(token.position);
        told = told || (token.is(WordClass::Trigger) && !token.inName && telling.contains(first));
        furtherDeed = furtherDeed || (token.position >= end &&
                                      (token.inTopic || token.is(WordClass::Topic) || deeds.contains(first)));
    }
    const QString &text = reading.sentence().text();
    const bool toldBehindPronoun = std::any_of(names.cbegin(), names.cend(), [&](const FoundName &name) {
        static const CharacterSet pronouns(u"他她"); // 让他先忙
        return pronouns.contains(charAt(text, name.start - 1)) && !isPersonsName(name.name);
    });
    bool adjacent = false;
    for (std::size_t at = 1; at < names.size(); ++at) {
        adjacent = adjacent || names[at - 1].position + names[at - 1].said.size() == names[at].position;
    }
    return !clear || furtherDeed || toldBehindPronoun || (told && adjacent);
}

/// 找小王聊聊离职的事, 跟小王对一下合同: people talk about something, and no word says that they meet.
bool onlyTalks(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    bool talks = false;
    bool meets = false;
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const Token &token = tokens[at];
        const bool about = token.is(WordClass::Topic) && at + 1 < tokens.size() && tokens[at + 1].inTopic &&
                           !tokens[at + 1].is(WordClass::Filler);
        const bool talk =
            token.is(WordClass::Video) && (about || textOf(reading, token).startsWith(QChar(u'聊')));
        talks = talks || talk;
        meets = meets || token.is(WordClass::Conference) || (token.is(WordClass::Video) && !talk);
    }
    bool playing = false; // 和张伟视频吃鸡
    for (std::size_t at = 0; at + 1 < reading.tokens().size(); ++at) {
        playing = playing || (reading.tokens()[at].is(WordClass::Video) &&
                              reading.tokens()[at + 1].kind == Token::Kind::Other &&
                              reading.tokens()[at + 1].length > 1 && !reading.has(WordClass::Conference));
    }
    return (playing || (talks && !meets)) && reading.timeSaid().isEmpty() && !reading.has(WordClass::Request);
}

/// 和好友开黑: no word adds anybody.
bool onlyMentionsFriend(const Reading &reading)
{
    static const QStringList nouns = {QStringLiteral("好友"), QStringLiteral("联系人"),
                                      QStringLiteral("通讯录"), QStringLiteral("好友列表")};
    constexpr WordClasses adding = WordClass::Add | WordClass::BuddyNoun | WordClass::Invite;
    if (reading.hasAny(adding) || reading.has(WordClass::Request)) {
        return false;
    }
    return std::none_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
        return token.is(WordClass::Buddy) && !nouns.contains(textOf(reading, token));
    });
}

/// 我三点在会议室开会, but not 创建在线会议.
bool isHeldInRoom(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    const int room = text.indexOf(QStringLiteral("室"));
    int before = room < 0 ? -1 : text.lastIndexOf(QChar(u'在'), room);
    static const CharacterSet adverbs(u"现正实"); // 现在
    while (before > 0 && adverbs.contains(text.at(before - 1))) {
        before = text.lastIndexOf(QChar(u'在'), before - 1);
    }
    constexpr int longestRoom = 8; // 三号大会议室
    return before >= 0 && room - before <= longestRoom && charAt(text, before + 1) != QChar(u'线') &&
           text.indexOf(QStringLiteral("开会"), room) > room;
}

/// 你能开会吗 asks what the assistant can do; 你能帮我开会吗 asks for a conference.
bool asksAbility(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    return firstOf(text, 0, {u"你能", u"你会", u"你可以"}) > 0 && reading.has(WordClass::Request) &&
           reading.has(WordClass::QuestionParticle) && reading.names().empty() &&
           reading.timeSaid().isEmpty() && !text.contains(QChar(u'帮')) && !text.contains(QChar(u'给'));
}

/// 帮我把会议室退了: gives a room back.
bool returnsRoom(const Reading &reading)
{
    return reading.sentence().text().contains(QStringLiteral("会议室退"));
}

/// 结束 in 开个结束会, 查询 in 开个查询会议: only the kind of a conference that is to be opened.
bool opensOfKind(const Reading &reading)
{
    static const CharacterSet opening(u"开建约办");
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 2; at < tokens.size(); ++at) {
        if (tokens[at].isAny(WordClass::Close | WordClass::Query) && tokens[at - 1].is(WordClass::Measure) &&
            tokens[at - 2].length == 1 &&
            opening.contains(reading.sentence().text().at(tokens[at - 2].position))) {
            return true;
        }
    }
    return false;
}

bool comesLater(const Reading &reading)
{
    return reading.has(WordClass::UnclearSoon); // 等会儿再加入123456789
}

bool isPassedOn(const Reading &reading)
{
    return passesOn(reading.sentence().text());
}

bool tellsOnlyEnd(const Reading &reading)
{
    return reading.tellsOnlyEnd();
}

using Doubt = bool (*)(const Reading &);

const QVector<Doubt> &doubtsAbout(const QString &intent)
{
    static const QHash<QString, QVector<Doubt>> doubts = {
        {QLatin1String(CreateConference),
         {asksWho,         tellsBeginning,    tellsWhen,        onlyTalks,           isHeldInRoom,
          sendsSomebody,   reminds,           tellsAgreement,   tellsWhatWasSet,     statesWhatIs,
          sendsOthersOnly, callsStranger,     mentionsStranger, onlySpeaksOf,        tellsOnlyEnd,
          asksAbility,     namesNoConference, onlyNamesRoom,    onlyNamesConference, alsoAddsFriend,
          comesSomeDay,    asksWhetherMay,    isBusyThen,       leavesOpenWhoComes,  holdsLooseNumber,
          holdsRestOfTime}},
        {QLatin1String(QueryConference), {tellsWhen, opensOfKind}},
        {QLatin1String(CloseConference),
         {asksWhetherMay, isPassedOn, alsoCalls, asksWho, returnsRoom, opensOfKind}},
        {QLatin1String(InviteConference),
         {leavesOpenWhoComes, sendsSomebody, sendsOthersOnly, callsForNothing, asksWho, comesLater,
          holdsLooseNumber}},
        {QLatin1String(EnterConferenceById), {isPassedOn, tellsWhoseNumber, comesLater}},
        {QLatin1String(EnterMyConference), {asksWho, asksHowMany, alsoInvites}},
        {QLatin1String(AddBuddy), {onlyMentionsFriend}},
    };
    static const QVector<Doubt> none;
    const auto row = doubts.constFind(intent);
    return row == doubts.cend() ? none : *row;
}

} // namespace

bool isAboutSomethingElse(const Reading &reading, const QString &intent)
{
    const QVector<Doubt> &doubts = doubtsAbout(intent);
    return isForLater(reading, intent) ||
           std::any_of(doubts.cbegin(), doubts.cend(), [&](Doubt holds) { return holds(reading); });
}

} // namespace understanding
