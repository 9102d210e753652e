// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/framereader.h"

#include "text/characterset.h"
#include "text/scan.h"

#include <algorithm>

namespace understanding {

namespace {

constexpr std::size_t FarthestVerb = 8; // tokens from the beginning of the clause

/// 碰个会, 开会: whether an order to meet begins at @p at, maybe behind 咱们再.
bool meetsFrom(const Tokens &tokens, std::size_t at)
{
    constexpr WordClasses leading = WordClass::Filler | WordClass::Nobody;
    while (at < tokens.size() && tokens[at].isAny(leading) && !tokens[at].is(WordClass::Actor)) {
        ++at;
    }
    if (at < tokens.size() && tokens[at].is(WordClass::Video)) { // 碰个头
        return true;
    }
    if (at >= tokens.size() || !tokens[at].isAny(WordClass::WeakOpen | WordClass::StrongOpen)) {
        return false;
    }
    ++at;
    while (at < tokens.size() && tokens[at].is(WordClass::Measure)) {
        ++at;
    }
    return at < tokens.size() && tokens[at].isAny(WordClass::Conference | WordClass::Video);
}

/// The end of 开庭前 or 中标以后 that begins at @p begin, right before an order to meet; @p begin for none.
std::size_t endOfOccasion(const QString &text, const Tokens &tokens, std::size_t begin)
{
    constexpr WordClasses harmless = WordClass::WeakOpen | WordClass::StrongOpen | WordClass::Trigger |
                                     WordClass::Topic | WordClass::Plain | WordClass::Filler;
    constexpr WordClasses never = WordClass::Request | WordClass::Nobody | WordClass::Framed |
                                  WordClass::UnclearDay | WordClass::UnclearSoon | WordClass::Punctuation |
                                  WordClass::Next | WordClass::Conference | WordClass::Negation |
                                  WordClass::Actor | WordClass::Reported;
    static const CharacterSet sides(u"前后");
    for (std::size_t at = begin; at < qMin(tokens.size(), begin + FarthestVerb); ++at) {
        const Token &token = tokens[at];
        const bool then =
            at > begin && token.length == 2 && startsAt(text, token.position, QStringLiteral("后再"));
        if (then) { // 复查后再开个会
            return meetsFrom(tokens, at + 1) ? at + 1 : begin;
        }
        const bool plain =
            token.kind == Token::Kind::Other || (token.kind == Token::Kind::Word && token.isAny(harmless));
        if (!plain || token.isAny(never)) {
            return begin;
        }
        const bool occasion = token.end() - tokens[begin].position > 2;
        if (occasion && sides.contains(text.at(token.end() - 1)) && meetsFrom(tokens, at + 1)) {
            return at + 1;
        }
    }
    return begin;
}

/// 我好安排出差, behind what is ordered; but 我好想散会 is a wish.
bool tellsUse(const QString &text, const Tokens &tokens, std::size_t begin)
{
    static const CharacterSet feelings(u"想怕累烦难困忙急久像多");
    const int use = firstOf(text, tokens[begin].position, {u"我好", u"我们好", u"咱们好"});
    const QChar next = charAt(text, tokens[begin].position + use);
    if (use == 0 || next.isNull() || feelings.contains(next)) {
        return false;
    }
    for (std::size_t at = begin; !isAtClauseEnd(tokens, at); ++at) {
        if (tokens[at].kind == Token::Kind::Time || tokens[at].is(WordClass::Conference)) {
            return false;
        }
    }
    return true;
}

/// 替我开 in 家长会替我开一个 asks to open one; 替我开会 would be to go there.
bool opensForSpeaker(const QString &text, const Tokens &tokens, std::size_t at)
{
    constexpr int length = 3;
    return tokens[at].length == length && at + 1 < tokens.size() && tokens[at + 1].is(WordClass::Measure) &&
           firstOf(text, tokens[at].position, {u"替我开一个", u"替我开个"}) > 0;
}

} // namespace

void settleFrames(const QString &text, Tokens &tokens)
{
    const bool timed =
        std::any_of(tokens.cbegin(), tokens.cend(), [](const Token &token) { return token.time.hasClock; });
    bool opened = false; // once is enough
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        constexpr int shortestCompound = 3;
        const bool change =
            at > 0 && at + 1 < tokens.size() && tokens[at].is(WordClass::Change) && tokens[at].length > 1 &&
            (tokens[at - 1].kind == Token::Kind::Other || tokens[at - 1].is(WordClass::Plain)) &&
            tokens[at + 1].is(WordClass::Conference) && tokens[at + 1].length >= shortestCompound;
        if (change) { // 需求变更评审会
            tokens[at].kind = Token::Kind::Other;
            tokens[at].classes = WordClasses();
        }
        if (!opened && opensForSpeaker(text, tokens, at)) {
            opened = true;
            Token verb = tokens[at];
            verb.classes = WordClass::WeakOpen;
            verb.length = 1;
            tokens[at].length -= verb.length;
            tokens[at].classes = WordClass::Request | WordClass::Filler;
            verb.position = tokens[at].end();
            tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(at) + 1, verb);
        }
        const bool begins = at == 0 || tokens[at - 1].is(WordClass::Punctuation);
        if (!begins) {
            continue;
        }
        if (timed) {
            const std::size_t end = endOfOccasion(text, tokens, at);
            for (std::size_t said = at; said < end; ++said) {
                tokens[said].inTopic = true;
            }
        }
        if (at > 0 && tellsUse(text, tokens, at)) {
            for (std::size_t said = at; !isAtClauseEnd(tokens, said); ++said) {
                tokens[said].inTopic = true;
            }
        }
    }
}

} // namespace understanding
