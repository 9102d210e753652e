// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/latinnames.h"

#include "names/namecharacters.h"
#include "names/namelook.h"
#include "text/scan.h"

namespace understanding {

bool LatinNames::isPrefix(std::size_t at) const
{
    return at + 1 < m_tokens.size() && m_tokens[at].length == 1 && m_tokens[at].kind == Token::Kind::Other &&
           looksLikeName(m_text.mid(m_tokens[at].position, 1) + QChar(u'子')) &&
           m_tokens[at + 1].kind == Token::Kind::Latin && m_tokens[at + 1].position == m_tokens[at].end();
}

bool LatinNames::isSurnameBehind(std::size_t latin) const
{
    const std::size_t next = latin + 1;
    return next < m_tokens.size() && m_tokens[next].kind == Token::Kind::Other &&
           m_tokens[next].length == 1 && m_tokens[next].position == m_tokens[latin].end() &&
           isPersonsName(m_text.mid(m_tokens[next].position, 1) + QChar(u'子')) &&
           (next + 1 == m_tokens.size() || !m_tokens[next + 1].is(WordClass::Title));
}

bool LatinNames::startsCapital(std::size_t at) const
{
    return m_tokens[at].kind == Token::Kind::Latin && m_text.at(m_tokens[at].position).isUpper();
}

bool LatinNames::isSomebodyBehindSpace(std::size_t at) const
{
    const std::size_t next = at + 1;
    if (next >= m_tokens.size() || m_tokens[at].kind != Token::Kind::Space) {
        return false;
    }
    const QString name = m_text.mid(m_tokens[next].position, m_tokens[next].length);
    return m_tokens[next].kind == Token::Kind::Name ||
           (startsCapital(next) && name != name.toUpper() && !isThing(name));
}

bool LatinNames::isNobiliary(std::size_t at) const
{
    return m_tokens[at].kind == Token::Kind::Latin &&
           understanding::firstOf(m_text, m_tokens[at].position,
                                  {u"van", u"von", u"der", u"den", u"de", u"da", u"di", u"del", u"la", u"le",
                                   u"bin", u"al"}) == m_tokens[at].length;
}

std::size_t LatinNames::lastOf(std::size_t first) const
{
    const auto parts = [&](std::size_t at) {
        return at + 1 < m_tokens.size() && (m_tokens[at].kind == Token::Kind::Space || isMiddleDot(at));
    };
    std::size_t last = first;
    for (;;) {
        constexpr std::size_t mostParticles = 2; // Kevin van der Berg
        std::size_t next = last;
        std::size_t particles = isNobiliary(first) && last == first ? 1 : 0;
        while (parts(next + 1) && particles < mostParticles && isNobiliary(next + 2)) {
            next += 2;
            ++particles;
        }
        if (!parts(next + 1) || !startsCapital(next + 2) || !(startsCapital(last) || particles > 0)) {
            return last;
        }
        last = next + 2;
    }
}

std::size_t LatinNames::firstOf(std::size_t last) const
{
    std::size_t first = last;
    while (first >= 2 && startsCapital(first) && startsCapital(first - 2) &&
           m_tokens[first - 1].kind == Token::Kind::Space) {
        first -= 2;
    }
    return first;
}

bool LatinNames::isGroupOfNext(std::size_t at) const
{
    const std::size_t next = at + 1;
    const std::size_t behind = at + 2;
    if (behind >= m_tokens.size() ||
        (m_tokens[next].kind != Token::Kind::Other && !m_tokens[next].classes.isEmpty())) {
        return false;
    }
    const QChar link = m_text.at(m_tokens[next].position);
    const bool group = link == QChar(u'组') || link == QChar(u'部');
    const bool somebody = m_tokens[next].length > 1 || m_tokens[behind].kind == Token::Kind::Latin ||
                          m_tokens[behind].kind == Token::Kind::Other ||
                          m_tokens[behind].kind == Token::Kind::Name;
    return link == QChar(u'的') || (group && somebody);
}

std::size_t LatinNames::endOfOffice(std::size_t at) const
{
    if (m_text.at(m_tokens[at].position) != QLatin1Char('@') || at == 0 ||
        m_tokens[at - 1].kind != Token::Kind::Latin || m_tokens[at - 1].end() != m_tokens[at].position) {
        return at;
    }
    constexpr std::size_t longest = 4;
    for (std::size_t next = at + 1; next < qMin(m_tokens.size(), at + longest); ++next) {
        const Token::Kind kind = m_tokens[next].kind;
        if (kind != Token::Kind::Other && kind != Token::Kind::Word && kind != Token::Kind::Name) {
            break;
        }
        if (endsGroup(m_text.at(m_tokens[next].end() - 1))) {
            return next;
        }
    }
    return at;
}

bool LatinNames::isMiddleDot(std::size_t at) const
{
    return at < m_tokens.size() && m_tokens[at].length == 1 &&
           m_text.at(m_tokens[at].position) == QChar(u'·');
}

} // namespace understanding
