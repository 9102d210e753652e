// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/tokenjoiner.h"

#include "names/headreader.h"
#include "names/namelook.h"

#include <algorithm>

namespace understanding {

bool leadsToNames(const Token &token)
{
    constexpr WordClasses leads = WordClass::Trigger | WordClass::Separator | WordClass::NameLabel |
                                  WordClass::Invite | WordClass::Pull;
    return token.isAny(leads) && !token.inTopic;
}

bool nameBegins(const QString &text, const Tokens &tokens, std::size_t at, int position)
{
    const Token &token = tokens[at];
    if (token.kind == Token::Kind::Name || token.kind == Token::Kind::Latin) {
        return token.position == position;
    }
    int end = token.end();
    const bool smallWord = token.kind == Token::Kind::Word && token.length == 1 && at + 1 < tokens.size() &&
                           tokens[at + 1].kind == Token::Kind::Other && !leadsToNames(token); // 关丽
    const bool titled = token.kind == Token::Kind::Other && end - position == 1 && at + 1 < tokens.size() &&
                        tokens[at + 1].is(WordClass::Title); // 蒲先生
    if (smallWord || titled) {
        end = tokens[at + 1].end();
    } else if (token.kind != Token::Kind::Other) {
        return false;
    }
    const std::size_t next = at + 1;
    constexpr WordClasses never = WordClass::Separator | WordClass::Trigger | WordClass::Punctuation |
                                  WordClass::Conference | WordClass::WeakOpen;
    if (!smallWord && end - position == 1 && next < tokens.size() && tokens[next].length == 1 &&
        tokens[next].position == end && !tokens[next].isAny(never)) { // 丁一
        ++end;
    }
    constexpr int longestName = 4;
    for (int length = 2; length <= qMin(longestName, end - position); ++length) {
        const QString name = text.mid(position, length);
        const bool doubled = length == 2 && name.at(0) == name.at(1); // 晓晓
        if ((doubled || isPersonsName(name)) && !isThing(name) && !isRelative(name)) {
            return true;
        }
    }
    return false;
}

bool TokenJoiner::isSomebodyExpected()
{
    return isBehindLead() || (!m_started && onlyNames());
}

void TokenJoiner::keep()
{
    constexpr WordClasses leading = WordClass::Filler | WordClass::Punctuation | WordClass::LabelLink;
    m_started = m_started || !m_tokens[m_at].isAny(leading);
    m_joined.push_back(m_tokens[m_at++]);
}

Token &TokenJoiner::join(int end, WordClass wordClass, std::size_t next)
{
    Token word;
    word.kind = Token::Kind::Word;
    word.position = m_tokens[m_at].position;
    word.length = end - word.position;
    word.classes = wordClass;
    m_joined.push_back(word);
    m_at = next;
    m_started = true;
    return m_joined.back();
}

bool TokenJoiner::onlyNames()
{
    if (!m_onlyNames) {
        constexpr WordClasses deeds = WordClass::Conference | WordClass::Join | WordClass::Arrive |
                                      WordClass::ComeMeet | WordClass::Pull | WordClass::Invite |
                                      WordClass::StrongOpen | WordClass::Query | WordClass::Add |
                                      WordClass::Close | WordClass::Request;
        m_onlyNames = std::none_of(m_tokens.cbegin(), m_tokens.cend(), [&](const Token &token) {
            return token.isAny(deeds) || token.kind == Token::Kind::Time ||
                   (token.is(WordClass::Trigger) && !token.is(WordClass::Separator));
        });
    }
    return *m_onlyNames;
}

bool TokenJoiner::meets()
{
    if (!m_meets) {
        constexpr WordClasses meeting = WordClass::Conference | WordClass::Join | WordClass::Arrive |
                                        WordClass::ComeMeet | WordClass::Video;
        m_meets = std::any_of(m_tokens.cbegin(), m_tokens.cend(), [&](const Token &token) {
            return token.isAny(meeting) || (token.is(WordClass::Pull) && token.length > 1); // 叫上
        });
    }
    return *m_meets;
}

} // namespace understanding
