// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timeexpression.h"
#include "words/wordclass.h"

#include <QString>

#include <vector>

namespace understanding {

/// One piece of a sentence.
struct Token
{
    enum class Kind {
        Other,    ///< characters no rule knows: names and topics consist of them
        Word,     ///< a word of the rules
        Name,     ///< a known contact
        Time,     ///< a moment or a day
        Duration, ///< how long
        Number,   ///< a string of digits
        Latin,    ///< letters, perhaps with digits: a name or an account
        Space
    };
    Kind kind = Kind::Other;
    int position = 0;
    int length = 0;
    WordClasses classes;
    QString name; ///< of a known contact
    TimeExpression time;
    bool inTopic = false;    ///< part of what a conference is about
    bool inName = false;     ///< part of a person's name or description
    bool inModifier = false; ///< part of a person's description: 产品经理 in 产品经理吴迪

    int end() const { return position + length; }
    bool is(WordClass wordClass) const { return classes.has(wordClass); }
    bool isAny(WordClasses any) const { return classes.intersects(any); }
};

using Tokens = std::vector<Token>;

/// True at the end of the sentence, at punctuation and at a space.
inline bool isAtClauseEnd(const Tokens &tokens, std::size_t at)
{
    return at >= tokens.size() || tokens[at].is(WordClass::Punctuation) ||
           tokens[at].kind == Token::Kind::Space;
}

} // namespace understanding
