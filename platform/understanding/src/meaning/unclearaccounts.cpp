// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/suspicions.h"

#include "text/chinesenumber.h"

#include <algorithm>

// The part of suspicions.h about accounts of friends.

namespace understanding {

namespace {

/// 13800138000 13900139000: two groups of digits, each too long for a piece of one number (138 0013 8000).
bool isTwoNumbers(const QString &said)
{
    constexpr int shortestNumber = 5;
    int whole = 0;
    int length = 0;
    for (const QChar character : said) {
        const bool gap = character == QLatin1Char(' ') || character == QLatin1Char('-');
        if (!gap && digitValue(character) < 0) { // front-desk@hotel.example
            return false;
        }
        length = gap ? 0 : length + 1;
        whole += length == shortestNumber ? 1 : 0;
    }
    return whole > 1;
}

bool holdsDigit(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar character) { return character.isDigit(); });
}

/// mike2和lucy3, mike2还是mike3, mike2，lucy3; but 小王，13800138000 is one person.
bool listsAccounts(const Reading &reading)
{
    constexpr int shortest = 3;
    enum class Link { None, Sign, Word };
    bool seen = false; // somebody or an account
    bool digits = false;
    Link link = Link::None;
    for (const Token &token : reading.tokens()) {
        const QString said = textOf(reading, token);
        const bool account = (token.kind == Token::Kind::Latin || token.kind == Token::Kind::Number) &&
                             token.length >= shortest;
        if (account || token.inName) {
            const bool another =
                link == Link::Word || (link == Link::Sign && digits && account && holdsDigit(said));
            if (seen && another) {
                return true;
            }
            seen = true;
            digits = account && holdsDigit(said);
            link = Link::None;
        } else if (token.is(WordClass::Separator) || said == QStringLiteral("还是") ||
                   said.startsWith(QChar(u'或'))) {
            link = Link::Word;
        } else if (token.kind == Token::Kind::Space || token.is(WordClass::Punctuation)) {
            link = link == Link::Word ? Link::Word : Link::Sign;
        } else if (!token.is(WordClass::AccountLabel)) { // 账号mike2和账号lucy3
            link = Link::None;
        }
    }
    return false;
}

/// 加小王小李好友: two people in a row.
bool listsNames(const Reading &reading)
{
    const std::vector<FoundName> &names = reading.names();
    return std::adjacent_find(names.cbegin(), names.cend(), [](const FoundName &one, const FoundName &next) {
               return one.position + one.said.size() == next.start;
           }) != names.cend();
}

/// 尾号8000 is only a part, 我的账号 nobody else's.
bool tellsOtherNumber(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    return std::any_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
        const QStringRef before = text.leftRef(token.position);
        const bool label = token.isAny(WordClass::AccountLabel | WordClass::IdLabel);
        return (label && (before.endsWith(QStringLiteral("我的")) || before.endsWith(QChar(u'我')))) ||
               (token.kind == Token::Kind::Number &&
                (before.endsWith(QStringLiteral("尾号")) || before.endsWith(QStringLiteral("尾号是")) ||
                 before.endsWith(QStringLiteral("后四位")) || before.endsWith(QStringLiteral("后四位是"))));
    });
}

} // namespace

bool isAccountUnclear(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    const auto isNumber = [](const Token &token) {
        return token.kind == Token::Kind::Number && !token.inName;
    };
    return std::count_if(tokens.cbegin(), tokens.cend(), isNumber) > 1 || listsNames(reading) ||
           isTwoNumbers(reading.account().value) || listsAccounts(reading) || tellsOtherNumber(reading);
}

} // namespace understanding
