// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/negation.h"

#include "text/characterset.h"
#include "text/scan.h"

namespace understanding {

bool isNegatedBefore(const QString &text, const Tokens &tokens, std::size_t at)
{
    static const CharacterSet negations(u"不没别甭勿莫");
    return at > 0 &&
           (tokens[at - 1].is(WordClass::Negation) ||
            (tokens[at - 1].kind == Token::Kind::Other && tokens[at - 1].end() == tokens[at].position &&
             negations.contains(text.at(tokens[at].position - 1))));
}

bool isAbsence(const QString &text, const Token &token)
{
    return token.is(WordClass::Negation) && firstOf(text, token.position, {u"不参加", u"不去"}) > 0;
}

} // namespace understanding
