// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/suspicions.h"

#include "text/scan.h"

#include <algorithm>

namespace understanding {

bool isLeftByOther(const Reading &reading)
{
    static const QStringList calls = {QStringLiteral("让"), QStringLiteral("叫"), QStringLiteral("请"),
                                      QStringLiteral("喊"), QStringLiteral("通知")};
    static const QStringList orders = {QStringLiteral("帮"), QStringLiteral("给我"), QStringLiteral("麻烦"),
                                       QStringLiteral("吧")};
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    bool served = false;
    bool asked = reading.isAsked();
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const QString word = text.mid(tokens[at].position, tokens[at].length);
        const bool other =
            at + 1 < tokens.size() && (tokens[at + 1].inName || tokens[at + 1].is(WordClass::Actor) ||
                                       tokens[at + 1].is(WordClass::Title));
        const bool noun = tokens[at].is(WordClass::Close) && tokens[at].end() + 1 < text.size() &&
                          text.at(tokens[at].end()) == QChar(u'的');
        if ((calls.contains(word) && other && !tokens[at].inName) || noun) {
            return true;
        }
        served = served || std::any_of(orders.cbegin(), orders.cend(),
                                       [&](const QString &order) { return word.startsWith(order); });
        asked = asked || tokens[at].is(WordClass::QuestionParticle);
    }
    return asked && !served;
}

bool onlyGoes(const Reading &reading)
{
    static const QString going = QStringLiteral("去来");
    bool conference = false;
    bool goes = false;
    for (const Token &token : reading.tokens()) {
        const bool joins = token.isAny(WordClass::Join | WordClass::WeakJoin);
        const bool leads = token.length == 1 && going.contains(reading.sentence().text().at(token.position));
        if (joins && !(conference && leads)) {
            return false;
        }
        goes = goes || joins;
        conference = conference || token.is(WordClass::Conference);
    }
    return goes;
}

bool isNumberOfOther(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    const bool told = std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        const int of = token.end();
        return token.isAny(WordClass::Join | WordClass::WeakJoin) && !token.is(WordClass::Conference) &&
               of < text.size() && text.at(of) == QChar(u'的') && text.indexOf(QChar(u'是'), of) > of;
    });
    constexpr WordClasses joining =
        WordClass::Join | WordClass::WeakJoin | WordClass::Conference | WordClass::PasswordLabel;
    const bool joins = std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        return token.isAny(WordClass::Join | WordClass::WeakJoin) &&
               charAt(text, token.end()) != QChar(u'的');
    });
    return (told && !joins) || (reading.has(WordClass::Add) && !reading.hasAny(joining) &&
                                !text.contains(QChar(u'会')) && reading.has(WordClass::IdLabel));
}

static bool isDeed(const Token &token)
{
    return token.isAny(WordClass::Conference | WordClass::Video | WordClass::Arrive | WordClass::Join |
                       WordClass::CloseAlone | WordClass::Buddy);
}

bool holdsSeveralNumbers(const Reading &reading)
{
    return std::count_if(reading.tokens().cbegin(), reading.tokens().cend(), [](const Token &token) {
               return token.kind == Token::Kind::Number && !token.inName;
           }) > 1;
}

bool isConditional(const Reading &reading)
{
    static const QStringList conditions = {
        QStringLiteral("如果"), QStringLiteral("要是"), QStringLiteral("假如"), QStringLiteral("假设"),
        QStringLiteral("只要"), QStringLiteral("除非"), QStringLiteral("一旦"), QStringLiteral("万一")};
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    bool begins = true; // a clause
    bool timed = false; // 今晚九点等孩子睡了: the hour was said
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const Token &token = tokens[at];
        const bool waits = begins && token.length == 1 && text.at(token.position) == QChar(u'等') &&
                           at + 1 < tokens.size() && !tokens[at + 1].is(WordClass::Punctuation) &&
                           tokens[at + 1].kind != Token::Kind::Space;
        const bool told = !token.inName && !token.inTopic;
        if (told && token.is(WordClass::Framed) &&
            conditions.contains(text.mid(token.position, token.length))) {
            return true;
        }
        // 等张伟回来再开会, but 把老林拉进来，等他半天了
        if (told && waits && !timed &&
            std::any_of(tokens.cbegin() + static_cast<std::ptrdiff_t>(at), tokens.cend(), isDeed)) {
            return true;
        }
        timed = (timed || token.time.hasClock) && !token.is(WordClass::Punctuation);
        begins = tokens[at].is(WordClass::Punctuation) ||
                 (begins && (tokens[at].is(WordClass::Filler) || tokens[at].kind == Token::Kind::Time));
    }
    return false;
}

} // namespace understanding
