// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/negation.h"

#include "text/scan.h"

namespace understanding {

bool isNegatedBefore(const QString &text, const Tokens &tokens, std::size_t at)
{
    static const QString negations = QStringLiteral("不没别甭勿莫");
    return at > 0 &&
           (tokens[at - 1].is(WordClass::Negation) ||
            (tokens[at - 1].kind == Token::Kind::Other && tokens[at - 1].end() == tokens[at].position &&
             negations.contains(text.at(tokens[at].position - 1))));
}

bool isAbsence(const QString &text, const Token &token)
{
    return token.is(WordClass::Negation) && firstOf(text, token.position, {u"不参加", u"不去"}) > 0;
}

bool isAbsent(const QString &text, const Tokens &tokens, std::size_t at)
{
    std::size_t next = at + 1;
    while (next < tokens.size() && tokens[next].is(WordClass::Filler)) { // 也, 就
        ++next;
    }
    const bool spared =
        next < tokens.size() && tokens[next].is(WordClass::GiveUp) && // 王磊就算了, 李娜先不用
        firstOf(text, tokens[next].position, {u"算了", u"先算了", u"不用", u"先不用", u"先不", u"免了"}) > 0;
    return next < tokens.size() && (spared || isAbsence(text, tokens[next]));
}

} // namespace understanding
