// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/questionreader.h"

#include "text/scan.h"

namespace understanding {

namespace {

/// True when a clause that asks for something follows the one at @p at.
bool isFollowedByClause(const Tokens &tokens, std::size_t at)
{
    bool next = false;
    for (; at < tokens.size(); ++at) {
        next = next || tokens[at].is(WordClass::Punctuation);
        if (next && tokens[at].isAny(WordClass::Request | WordClass::Pull | WordClass::Arrive)) {
            return true;
        }
    }
    return false;
}

} // namespace

void settleQuestions(const QString &text, Tokens &tokens)
{
    // 呢 in 七点半呢，跟张伟开个会 only gives time to think.
    for (std::size_t at = 1; at + 2 < tokens.size(); ++at) {
        if (tokens[at].is(WordClass::QuestionParticle) && tokens[at - 1].kind == Token::Kind::Time &&
            tokens[at + 1].is(WordClass::Punctuation)) {
            tokens[at].classes.remove(WordClass::QuestionParticle);
        }
    }
    // 客户等着呢 and 开着车呢 beside an order are asides.
    constexpr WordClasses asked = WordClass::Conference | WordClass::Have | WordClass::Query |
                                  WordClass::Question | WordClass::Schedule | WordClass::Next;
    bool asks = false; // in this clause
    for (Token &token : tokens) {
        if (token.is(WordClass::QuestionParticle) && !asks && text.at(token.position) == QChar(u'呢')) {
            token.classes.remove(WordClass::QuestionParticle);
        }
        asks = (asks || token.isAny(asked)) && !token.is(WordClass::Punctuation);
    }
    // 怎么 in 崔健怎么还没到，把他叫进来 only wonders: an order follows.
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        if (tokens[at].is(WordClass::HowTo) &&
            firstOf(text, tokens[at].end(), {u"还", u"没", u"不", u"这么", u"那么"}) > 0 &&
            isFollowedByClause(tokens, at + 1)) {
            tokens[at].classes = WordClasses();
        }
    }
    // 还是明天下午开会吧 decides; only behind a first choice it asks.
    for (Token &token : tokens) {
        if (token.is(WordClass::EitherOr) || token.kind == Token::Kind::Time) {
            if (token.kind != Token::Kind::Time) {
                token.classes.remove(WordClass::EitherOr);
            }
            break;
        }
    }
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        if (tokens[at].is(WordClass::HowTo) && tokens[at].is(WordClass::Filler) &&
            isAtClauseEnd(tokens, at + 1)) {
            tokens[at].classes.remove(WordClass::HowTo);
        }
    }
}

} // namespace understanding
