// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/callings.h"

#include "names/headreader.h"
#include "names/namecharacters.h"
#include "text/characterset.h"
#include "text/scan.h"

#include <algorithm>

namespace understanding {

namespace {

bool isSpeaker(const Reading &reading, const Token &token)
{
    const QString &text = reading.sentence().text();
    return token.isAny(WordClass::Nobody | WordClass::Mine) &&
           (understanding::isSpeaker(text.at(token.position)) ||
            startsAt(text, token.position, QStringLiteral("本人")));
}

/// 兄弟, 那谁: somebody, but unclear who.
bool standsForName(const Reading &reading, const Token &token)
{
    static const CharacterSet vague(u"那某谁");
    static const CharacterSet referring(u"他她"); // to somebody who was never named
    const std::vector<FoundName> &names = reading.names();
    const bool unnamed = token.length == 1 && (names.empty() || names.front().position > token.position) &&
                         referring.contains(reading.sentence().text().at(token.position));
    return unnamed || token.is(WordClass::Address) ||
           (token.isAny(WordClass::Filler | WordClass::Nobody | WordClass::Actor) &&
            vague.contains(reading.sentence().text().at(token.position)));
}

bool isCalling(const Token &token)
{
    constexpr WordClasses calling = WordClass::Trigger | WordClass::Pull | WordClass::Invite |
                                    WordClass::Separator | WordClass::NameLabel;
    return token.isAny(calling) && !token.inTopic && !token.inName;
}

bool isPulling(const Token &token)
{
    return isCalling(token) && (token.isAny(WordClass::Pull | WordClass::Invite) ||
                                (token.is(WordClass::Trigger) && !token.is(WordClass::Separator)));
}

/// The first token behind the calling one at @p at that may say who is called.
std::size_t calledAt(const Tokens &tokens, std::size_t at)
{
    do {
        ++at;
    } while (at < tokens.size() &&
             (tokens[at].kind == Token::Kind::Space ||
              tokens[at].isAny(WordClass::Measure | WordClass::AccountLabel | WordClass::LabelLink)));
    return at;
}

/// 200002会议, 200002的会议: the number says which conference.
bool isOfConference(const Reading &reading, std::size_t number)
{
    const Tokens &tokens = reading.tokens();
    std::size_t next = number + 1;
    while (
        next < tokens.size() &&
        (tokens[next].kind == Token::Kind::Space || tokens[next].is(WordClass::Measure) ||
         (tokens[next].length == 1 && reading.sentence().text().at(tokens[next].position) == QChar(u'的')))) {
        ++next;
    }
    return next < tokens.size() && tokens[next].isAny(WordClass::Conference | WordClass::IdLabel) &&
           !tokens[next].is(WordClass::Join); // 200002入会 tells who comes
}

bool isCalledNumber(const Reading &reading, std::size_t at)
{
    const Tokens &tokens = reading.tokens();
    return at < tokens.size() && tokens[at].kind == Token::Kind::Number &&
           tokens[at].length >= ShortestAccount && !isOfConference(reading, at);
}

/// The last token of whom the one at @p at pulls in, 同事 in 拉我的同事; null for none.
const Token *pulledBy(const Reading &reading, std::size_t at)
{
    const Tokens &tokens = reading.tokens();
    const Token *pulled = nullptr;
    for (at = calledAt(tokens, at);
         at < tokens.size() && tokens[at].isAny(WordClass::Nobody | WordClass::Mine); ++at) {
        pulled = &tokens[at];
    }
    return pulled;
}

template <typename Holds>
bool anyToken(const Reading &reading, Holds holds)
{
    for (std::size_t at = 0; at < reading.tokens().size(); ++at) {
        if (holds(at)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool callsByAddressOnly(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    return anyToken(reading, [&](std::size_t at) {
        if (!isCalling(tokens[at])) {
            return false;
        }
        std::size_t next = calledAt(tokens, at);
        while (next < tokens.size() && isSpeaker(reading, tokens[next])) { // 和我兄弟
            ++next;
        }
        if (next + 1 < tokens.size() && tokens[next + 1].inName) { // 和那个王磊, but not 约他弟弟
            const QString named =
                reading.sentence().text().mid(tokens[next + 1].position, tokens[next + 1].length);
            return isRelative(named) && standsForName(reading, tokens[next]);
        }
        // 请管家帮我开个会 talks to the assistant.
        return next < tokens.size() && standsForName(reading, tokens[next]) && !tokens[next].inName &&
               !tokens[next].inTopic &&
               !(next + 1 < tokens.size() && tokens[next + 1].is(WordClass::Request));
    });
}

bool callsNumber(const Reading &reading)
{
    return anyToken(reading, [&](std::size_t at) {
        return isCalling(reading.tokens()[at]) && isCalledNumber(reading, calledAt(reading.tokens(), at));
    });
}

bool pullsOther(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    const bool pulls = std::any_of(tokens.cbegin(), tokens.cend(), isPulling);
    return anyToken(reading, [&](std::size_t at) {
        if (pulls && isCalling(tokens[at]) && isCalledNumber(reading, calledAt(tokens, at))) {
            return true; // also 200002 in 拉张伟和200002进来
        }
        if (!isPulling(tokens[at])) {
            return false;
        }
        const bool people = tokens[at].is(WordClass::Invite) &&
                            reading.sentence().text().at(tokens[at].end() - 1) == QChar(u'人'); // 拉人
        const Token *pulled = pulledBy(reading, at);
        static const CharacterSet assistants(u"你您"); // 号给你，123456
        return people || (pulled != nullptr && !isSpeaker(reading, *pulled) &&
                          !assistants.contains(reading.sentence().text().at(pulled->position)));
    });
}

bool pullsSpeaker(const Reading &reading)
{
    return !pullsOther(reading) && anyToken(reading, [&](std::size_t at) {
        const Token *pulled = isPulling(reading.tokens()[at]) ? pulledBy(reading, at) : nullptr;
        return pulled != nullptr && isSpeaker(reading, *pulled);
    });
}

} // namespace understanding
