// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/nameplaces.h"

#include <algorithm>

namespace understanding {

bool NamePlaces::standsApartBefore(std::size_t at) const
{
    return at == 0 || m_tokens[at - 1].kind == Token::Kind::Space ||
           m_tokens[at - 1].isAny(WordClass::Punctuation | WordClass::Separator);
}

bool NamePlaces::standsApartBehind(std::size_t at) const
{
    return at + 1 == m_tokens.size() || m_tokens[at + 1].kind == Token::Kind::Space ||
           m_tokens[at + 1].isAny(WordClass::Punctuation | WordClass::Separator);
}

bool NamePlaces::hasConference() const
{
    return std::any_of(m_tokens.cbegin(), m_tokens.cend(),
                       [](const Token &token) { return token.is(WordClass::Conference) && !token.inTopic; });
}

bool NamePlaces::isPlainBeforeName(std::size_t at) const
{
    return m_tokens[at].is(WordClass::Plain) && at + 1 < m_tokens.size() &&
           m_tokens[at + 1].kind == Token::Kind::Other &&
           m_text.at(m_tokens[at + 1].position) == QChar(u'的');
}

bool NamePlaces::isNumberBeforeName(std::size_t at) const
{
    const Token &token = m_tokens[at];
    return token.kind == Token::Kind::Number && token.length <= 2 && at + 1 < m_tokens.size() &&
           m_tokens[at + 1].kind == Token::Kind::Other && m_tokens[at + 1].position == token.end();
}

std::size_t NamePlaces::lastOfRun(std::size_t at, std::size_t limit) const
{
    while (at + 1 < m_tokens.size() && at < limit && !m_tokens[at + 1].inTopic &&
           (m_tokens[at + 1].kind == Token::Kind::Other || isSmallWordInName(at + 1) ||
            isPlainBeforeName(at + 1))) {
        ++at;
    }
    return at;
}

bool NamePlaces::isSmallWordInName(std::size_t at) const
{
    const Token &token = m_tokens[at];
    constexpr WordClasses hard = WordClass::Separator | WordClass::WeakOpen | WordClass::Conference |
                                 WordClass::Punctuation | WordClass::Nobody;
    const bool measure = m_text.at(token.position) == QChar(u'个'); // in no name, and in 约个时间
    return token.kind == Token::Kind::Word && token.length == 1 && !token.isAny(hard) && !measure;
}

std::size_t NamePlaces::skipToNames(std::size_t lead) const
{
    std::size_t at = lead + 1;
    constexpr WordClasses between = WordClass::Measure;
    const bool label = m_tokens[lead].isAny(WordClass::NameLabel);
    while (at < m_tokens.size()) {
        const Token &token = m_tokens[at];
        const bool linked =
            label && (token.isAny(WordClass::LabelLink | WordClass::Have | WordClass::NameLabel) ||
                      token.is(WordClass::Punctuation));
        if (!token.isAny(between) && token.kind != Token::Kind::Space && !linked) {
            break;
        }
        ++at;
    }
    return at;
}

bool NamePlaces::isOwner(std::size_t at) const
{
    return m_tokens[at].is(WordClass::Mine) && at + 1 < m_tokens.size() &&
           (m_tokens[at + 1].is(WordClass::Nobody) || m_tokens[at + 1].kind == Token::Kind::Other ||
            m_tokens[at + 1].kind == Token::Kind::Name);
}

bool NamePlaces::isMiddleDot(std::size_t at) const
{
    return at < m_tokens.size() && m_tokens[at].length == 1 &&
           m_text.at(m_tokens[at].position) == QChar(u'·');
}

std::size_t NamePlaces::skipTitle(std::size_t at) const
{
    return at + 1 < m_tokens.size() && m_tokens[at + 1].is(WordClass::Title) ? at + 1 : at;
}

} // namespace understanding
