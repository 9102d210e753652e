// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/repairs.h"

#include "text/scan.h"

#include <algorithm>

namespace understanding {

namespace {

constexpr int FirstHourOf24 = 13;
constexpr std::size_t None = static_cast<std::size_t>(-1);

bool isPause(const Token &token)
{
    return token.kind == Token::Kind::Space || token.is(WordClass::Punctuation);
}

bool isCode(const Token &token)
{
    return token.kind == Token::Kind::Number || token.kind == Token::Kind::Latin;
}

bool isNamePart(const Token &token)
{
    return token.kind == Token::Kind::Name || token.kind == Token::Kind::Other ||
           token.is(WordClass::Title) || token.kind == Token::Kind::Latin;
}

/// The first token behind @p repair that says something: 四点 in 不对，是四点, 小王 in 不对，约小王.
std::size_t replacementOf(const Tokens &tokens, std::size_t repair)
{
    constexpr WordClasses leading = WordClass::Filler | WordClass::LabelLink | WordClass::Trigger |
                                    WordClass::Repair | WordClass::PasswordLabel | WordClass::IdLabel |
                                    WordClass::AccountLabel;
    for (std::size_t at = repair + 1; at < tokens.size(); ++at) {
        if (!isPause(tokens[at]) && !tokens[at].isAny(leading)) {
            return at;
        }
    }
    return None;
}

template <typename Holds>
std::size_t lastBefore(const Tokens &tokens, std::size_t end, Holds holds)
{
    for (std::size_t at = end; at > 0; --at) {
        if (holds(tokens[at - 1])) {
            return at - 1;
        }
    }
    return None;
}

/// 明天下午三点, then 四点: the day and the part of the day stay.
void replaceTime(Token &later, const Token &earlier)
{
    TimeExpression rest = earlier.time;
    if (later.time.hasOffset) {
        return;
    }
    if (later.time.hasClock && later.time.hour >= FirstHourOf24) {
        rest.part = -1;
    }
    rest.hasOffset = false;
    rest.impossible = false;
    later.time.complete(rest);
}

/// The first token of the name that stands right before @p repair, None if there is none.
std::size_t nameBefore(const Tokens &tokens, std::size_t repair)
{
    std::size_t end = repair;
    while (end > 0 && isPause(tokens[end - 1])) {
        --end;
    }
    std::size_t begin = end;
    while (begin > 0 && isNamePart(tokens[begin - 1])) {
        --begin;
    }
    return begin < end ? begin : None;
}

bool callsPeople(const Token &token)
{
    return token.is(WordClass::Trigger) && !token.is(WordClass::StrongOpen);
}

/// Drops the name behind the last call before @p repair, and the call too if the replacement calls:
/// 约小张开会，不对，约小王. Returns false if nobody was called, or several people.
bool dropCall(Tokens &tokens, std::size_t repair, std::size_t later, std::vector<bool> &dropped)
{
    bool called = false;
    for (std::size_t at = repair + 1; at < later; ++at) {
        called = called || callsPeople(tokens[at]);
    }
    const std::size_t trigger = lastBefore(tokens, repair, callsPeople);
    if (trigger == None) {
        return false;
    }
    std::size_t end = trigger + 1;
    while (end < repair && isNamePart(tokens[end])) {
        ++end;
    }
    const bool listed =
        (end < repair && tokens[end].is(WordClass::Separator)) ||
        (trigger > 0 && tokens[trigger].is(WordClass::Separator) && isNamePart(tokens[trigger - 1]));
    if (end == trigger + 1 || listed) { // which of several?
        return false;
    }
    if (!called) {
        tokens[repair].classes = WordClass::Trigger; // 拉王姐进会，不对，彭姐: it calls now
    }
    const std::size_t begin = called ? trigger : trigger + 1;
    std::fill(dropped.begin() + static_cast<std::ptrdiff_t>(begin),
              dropped.begin() + static_cast<std::ptrdiff_t>(end), true);
    return true;
}

/// Marks what @p repair replaces as dropped; returns true if it replaced something.
bool repairAt(Tokens &tokens, std::size_t repair, std::vector<bool> &dropped)
{
    const std::size_t later = replacementOf(tokens, repair);
    if (later == None) {
        return false;
    }
    const std::size_t earlierCode = isCode(tokens[later]) ? lastBefore(tokens, repair, isCode) : None;
    if (tokens[later].kind == Token::Kind::Time) {
        const std::size_t earlier =
            lastBefore(tokens, repair, [](const Token &token) { return token.kind == Token::Kind::Time; });
        if (earlier == None) {
            return false;
        }
        replaceTime(tokens[later], tokens[earlier]);
        dropped[earlier] = true;
    } else if (earlierCode != None) {
        dropped[earlierCode] = true;
    } else if (isNamePart(tokens[later])) {
        const std::size_t earlier = nameBefore(tokens, repair);
        if (earlier != None) {
            std::fill(dropped.begin() + static_cast<std::ptrdiff_t>(earlier),
                      dropped.begin() + static_cast<std::ptrdiff_t>(repair), true);
        } else if (!dropCall(tokens, repair, later, dropped)) {
            return false;
        }
    } else {
        return false;
    }
    // Drop the pauses around the repair, too, so that one clause remains.
    dropped[repair] = !tokens[repair].is(WordClass::Trigger);
    for (std::size_t at = repair; at > 0 && (isPause(tokens[at - 1]) || dropped[at - 1]); --at) {
        dropped[at - 1] = true;
    }
    for (std::size_t at = repair + 1; at < later; ++at) {
        dropped[at] =
            dropped[at] || isPause(tokens[at]) || tokens[at].isAny(WordClass::Repair | WordClass::LabelLink);
    }
    return true;
}

/// Makes 改成 a repair unless it changes an existing conference.
void settleChanges(const QString &text, Tokens &tokens)
{
    bool opened = false;
    bool spokenOf = false;
    for (Token &token : tokens) {
        const bool becomes = firstOf(text, token.position, {u"改成", u"改为", u"换成"}) == token.length;
        if (token.is(WordClass::Change) && becomes && (opened || !spokenOf)) {
            token.classes = WordClass::Repair;
        }
        opened = opened || (token.isAny(WordClass::StrongOpen | WordClass::WeakOpen) &&
                            charAt(text, token.end()) != QChar(u'的'));
        spokenOf = spokenOf || token.is(WordClass::Conference);
    }
}

} // namespace

void applyRepairs(const QString &text, Tokens &tokens)
{
    for (std::size_t at = 1; at + 1 < tokens.size(); ++at) { // 五点，不，五点半
        if (tokens[at].length == 1 && text.at(tokens[at].position) == QChar(u'不') &&
            isPause(tokens[at - 1]) && isPause(tokens[at + 1])) {
            tokens[at].kind = Token::Kind::Word;
            tokens[at].classes = WordClass::Repair;
        }
    }
    settleChanges(text, tokens);
    const bool repairs = std::any_of(tokens.cbegin(), tokens.cend(),
                                     [](const Token &token) { return token.is(WordClass::Repair); });
    if (!repairs) {
        return;
    }
    constexpr int most = 8; // nobody repairs a sentence more often; keeps hostile ones linear
    std::vector<bool> dropped(tokens.size(), false);
    int count = 0;
    for (std::size_t at = 0; at < tokens.size() && count < most; ++at) {
        if (tokens[at].is(WordClass::Repair) && !dropped[at]) {
            repairAt(tokens, at, dropped);
            ++count;
        }
    }
    Tokens kept;
    kept.reserve(tokens.size());
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        if (!dropped[at]) {
            kept.push_back(std::move(tokens[at]));
        }
    }
    tokens = std::move(kept);
}

} // namespace understanding
