// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/reading.h"

#include "text/chinesenumber.h"
#include "text/scan.h"
#include "words/clausereader.h"
#include "words/lexer.h"

#include <algorithm>

namespace understanding {

namespace {

constexpr int ShortestNumber = 3; // 3号会议室 has no number of a conference

} // namespace

Reading::Reading(const QString &sentence, const ContactIndex &contacts) : m_sentence(sentence)
{
    m_tokens = tokenize(m_sentence.text(), contacts);
    settleWords(m_sentence.text(), m_tokens);
    m_names = findNames(m_sentence.raw(), m_sentence.text(), m_tokens);
    markNames();
    collectClasses();
    collectTimes();
    collectNumbers();
    collectOpenVerb();
}

Said Reading::part(int position, int length, const QString &normValue) const
{
    return {position, length, m_sentence.rawPart(position, length), normValue};
}

void Reading::markNames()
{
    auto name = m_names.cbegin();
    for (Token &token : m_tokens) {
        while (name != m_names.cend() && name->position + name->said.size() <= token.position) {
            ++name;
        }
        token.inName = name != m_names.cend() && name->start < token.end();
    }
}

bool Reading::isCalledAt(int position) const
{
    const auto behind = std::upper_bound(m_names.cbegin(), m_names.cend(), position,
                                         [](int at, const FoundName &name) { return at < name.start; });
    return behind != m_names.cbegin() && (behind - 1)->behindTrigger;
}

void Reading::collectClasses()
{
    for (const Token &token : m_tokens) {
        // 关羽 closes nothing.
        if (!token.inTopic && !(token.inName && token.length == 1)) {
            m_classes.add(token.classes);
        }
    }
}

void Reading::collectTimes()
{
    for (const Token &token : m_tokens) {
        if ((token.kind != Token::Kind::Time && token.time.isEmpty()) || token.inTopic) {
            continue;
        }
        m_timeSaid += m_sentence.rawPart(token.position, token.length);
        if (m_timeCount == 0) {
            m_time = token.time;
        } else {
            m_time.complete(token.time);
        }
        ++m_timeCount;
    }
}

Said Reading::digitsOf(const Token &token) const
{
    return part(token.position, token.length,
                digitString(m_sentence.text().mid(token.position, token.length)));
}

/// 会议号是12: said to be a number, however short.
bool Reading::isLabelled(std::size_t number) const
{
    std::size_t at = number;
    while (at > 0) {
        const Token &before = m_tokens[--at];
        if (before.isAny(WordClass::IdLabel | WordClass::Conference)) {
            return true;
        }
        if (!before.isAny(WordClass::LabelLink | WordClass::Punctuation) &&
            before.kind != Token::Kind::Space) {
            return false;
        }
    }
    return false;
}

bool Reading::takePassword(std::size_t label)
{
    for (std::size_t at = label + 1; at < m_tokens.size(); ++at) {
        const Token &token = m_tokens[at];
        if (token.kind == Token::Kind::Number || token.kind == Token::Kind::Latin) {
            m_password = digitsOf(token);
            return true;
        }
        // 密码是一二: too short for a number of its own.
        const int end = digitStringEnd(m_sentence.text(), token.position);
        if (token.kind == Token::Kind::Other && end > token.position) {
            m_password = part(token.position, end - token.position,
                              digitString(m_sentence.text().mid(token.position, end - token.position)));
            return true;
        }
        if (token.isAny(WordClass::IdLabel | WordClass::Conference | WordClass::Join)) {
            return false;
        }
    }
    return false;
}

void Reading::collectNumbers()
{
    for (std::size_t at = 0; at < m_tokens.size() && m_password.isEmpty(); ++at) {
        if (m_tokens[at].is(WordClass::PasswordLabel)) {
            takePassword(at);
        }
    }
    for (std::size_t at = 0; at < m_tokens.size(); ++at) {
        const Token &token = m_tokens[at];
        const bool isNumber = token.kind == Token::Kind::Number;
        const bool isPassword = !m_password.isEmpty() && token.position == m_password.position;
        if ((!isNumber && token.kind != Token::Kind::Latin) || isPassword || token.inTopic) {
            continue;
        }
        if (m_account.isEmpty()) {
            m_account = digitsOf(token);
        }
        if (isNumber && m_number.isEmpty() && (token.length >= ShortestNumber || isLabelled(at))) {
            m_number = digitsOf(token);
        }
    }
}

void Reading::collectOpenVerb()
{
    int best = 0;
    for (const Token &token : m_tokens) {
        if (token.inTopic) {
            continue;
        }
        const bool pulls =
            token.length == 1 && QStringLiteral("约拉来").contains(m_sentence.text().at(token.position));
        const int rank = token.isAny(WordClass::StrongOpen)                            ? 3
                         : token.isAny(WordClass::WeakOpen | WordClass::GoverningOpen) ? (pulls ? 1 : 2)
                                                                                       : 0;
        if (rank > best) {
            best = rank;
            m_openVerb = part(token.position, token.length, m_sentence.rawPart(token.position, token.length));
        }
    }
    if (best > 0) {
        return;
    }
    // 上午的会，帮我约张伟: the verb takes people, the conference came before.
    for (const Token &token : m_tokens) {
        const bool meets = token.length == 1 && m_sentence.text().at(token.position) == QChar(u'约');
        if (meets && token.is(WordClass::Trigger) && !token.inTopic && has(WordClass::Conference)) {
            m_openVerb = part(token.position, 1, m_sentence.rawPart(token.position, 1));
            return;
        }
    }
    for (const Token &token : m_tokens) {
        const int open = m_sentence.text().indexOf(QChar(u'开'), token.position);
        if (token.is(WordClass::ComeMeet) && !token.inTopic && open >= 0 && open < token.end()) {
            m_openVerb = part(open, 1, m_sentence.rawPart(open, 1));
            return;
        }
    }
}

} // namespace understanding
