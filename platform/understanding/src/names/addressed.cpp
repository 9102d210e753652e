// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/addressed.h"

#include "text/characterset.h"
#include "text/scan.h"

namespace understanding {

void settleAddress(const QString &text, Tokens &tokens)
{
    std::size_t at = 0;
    while (at < tokens.size() && tokens[at].isAny(WordClass::Filler | WordClass::Punctuation)) { // 哎，
        ++at;
    }
    std::size_t next = at + 1;
    const bool unnamed = at > 0 && next < tokens.size() && text.at(tokens[at].position) == QChar(u'谁') &&
                         text.at(tokens[at - 1].position) == QChar(u'那'); // 那个谁，帮我开个会
    constexpr int shortest = 2;
    constexpr int longest = 4;
    const bool named = next < tokens.size() && tokens[at].kind == Token::Kind::Other &&
                       tokens[at].length >= shortest && tokens[at].length <= longest &&
                       text.at(tokens[at].position) == QChar(u'小');
    if (next + 1 >= tokens.size() || (!named && !unnamed) || !tokens[next].is(WordClass::Punctuation) ||
        text.at(tokens[next].position) == QChar(u'、')) {
        return;
    }
    while (next + 1 < tokens.size() &&
           (tokens[next].is(WordClass::Punctuation) || tokens[next].kind == Token::Kind::Space)) {
        ++next;
    }
    static const CharacterSet orders(u"约和跟与把将给");
    const bool ordered = tokens[next].is(WordClass::Request) ||
                         (tokens[next].is(WordClass::Trigger) && tokens[next].length == 1 &&
                          orders.contains(text.at(tokens[next].position)));
    if (ordered) {
        tokens[at].kind = Token::Kind::Word;
        tokens[at].classes = unnamed ? WordClass::Filler : WordClass::Address;
    }
}

} // namespace understanding
