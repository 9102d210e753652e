// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/namerunreader.h"

#include "names/headreader.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/scan.h"
#include "words/lexicon.h"

#include <algorithm>

namespace understanding {

std::size_t NameRunReader::takeRun(std::size_t at, bool mustLookLikeName)
{
    const int start = m_tokens[at].position;
    std::size_t last = m_places.lastOfRun(at, m_tokens.size());
    bool dotted = false;
    while (last + 1 < m_tokens.size()) {
        if (m_latin.isMiddleDot(last + 1) && last + 2 < m_tokens.size()) { // 买买提·艾力
            dotted = true;
            const std::size_t first = last + 2;
            const std::size_t longest = m_places.lastOfRun(first, m_tokens.size());
            const int begin = m_tokens[first].position;
            const bool spelled =
                isTransliterated(m_text.mid(begin, m_tokens[longest].end() - begin)); // 克拉克
            last = m_tokens[first].kind == Token::Kind::Other && !spelled ? first : longest;
        } else if (m_tokens[last + 1].is(WordClass::Title)) { // 张主任, 产品经理吴迪
            last = m_places.lastOfRun(last + 1, m_tokens.size());
        } else {
            break;
        }
    }
    const int end = m_tokens[last].end();
    if (dotted) {
        const QString name = dottedName(m_text.mid(start, end - start));
        addOne(m_text.indexOf(name, start), name.size(), true);
        m_names.back().start = m_modifierStart >= 0 ? m_modifierStart : m_names.back().start;
        if (isModifier(m_text.mid(start, m_names.back().position - start))) { // 人事部的丽莎·张
            m_names.back().start = qMin(start, m_names.back().start);
        }
        m_modifierStart = -1;
        return last;
    }
    const QString run = m_text.mid(start, end - start);
    const std::size_t next = last + 1;
    const bool nameFollows = next < m_tokens.size() && (m_tokens[next].kind == Token::Kind::Name ||
                                                        m_tokens[next].kind == Token::Kind::Latin);
    const bool nameBehindSpace = // 设计师 Sophie, but not 王司机 Mike; 片区的负责人 马腾
        (m_latin.isSomebodyBehindSpace(next) && !isPersonsName(run) && !isRelative(run)) ||
        (next + 1 < m_tokens.size() && m_tokens[next].kind == Token::Kind::Space &&
         m_tokens[next + 1].kind == Token::Kind::Other && run.contains(QChar(u'的')) &&
         isPersonsName(m_text.mid(m_tokens[next + 1].position, m_tokens[next + 1].length)));
    if ((nameFollows || nameBehindSpace) && isModifier(run)) {
        m_modifierStart = m_modifierStart < 0 ? start : m_modifierStart;
        return last;
    }
    const QChar lastCharacter = run.at(run.size() - 1);
    const bool sir = startsAt(m_text, end, QStringLiteral("Sir"));
    const bool apart = run.size() > 1 && run.at(run.size() - 2) == QLatin1Char('-'); // 测试-阿May
    if (nameFollows && (isNamePrefix(lastCharacter) || sir) &&
        (apart || isModifier(run.chopped(1)))) { // 设计师阿B, 法务的林Sir
        addOne(end - 1, m_tokens[next].end() - end + 1, true);
        m_names.back().start = m_modifierStart >= 0 ? m_modifierStart : start;
        m_modifierStart = -1;
        return next;
    }
    if (m_places.isPointer(next) && !isPersonsName(run)) {
        m_modifierStart = start;
        return next;
    }
    const std::size_t before = m_names.size();
    addChunk(start, end, mustLookLikeName, true);
    const bool ofGroup = m_names.size() > before && next < m_tokens.size() && // 北京团队 is not 北京
                         m_tokens[next].is(WordClass::Nobody) && !isPersonsName(m_names.back().name) &&
                         firstOf(m_text, end, {u"团队", u"成员", u"人员", u"同事"}) > 0;
    if (ofGroup) {
        doubtLast();
    }
    const bool listed = at > 0 && m_tokens[at - 1].is(WordClass::Separator);
    if (m_names.size() == before && mustLookLikeName && listed && !m_names.empty()) { // 阿辉和思思
        addChunk(start, end, false, true);
        std::for_each(m_names.begin() + static_cast<std::ptrdiff_t>(before), m_names.end(),
                      [](FoundName &name) { name.doubtful = true; });
    }
    return last;
}

std::size_t NameRunReader::takeLatinName(std::size_t at)
{
    std::size_t last = m_latin.lastOf(at);
    const QString first = m_text.mid(m_tokens[at].position, m_tokens[at].length);
    if (last > at && isModifier(first)) { // CFO Linda
        at += 2;
    }
    const int start = m_tokens[at].position;
    if (m_text.at(start).isDigit()) { // 1on1
        return at;
    }
    const QString name = m_text.mid(start, m_tokens[last].end() - start);
    if (isThing(name)) { // 把PPT带上
        return last;
    }
    if (m_latin.isSurnameBehind(last)) { // Miss李, C罗
        addOne(start, name.size() + 1, true);
        m_names.back().start = m_modifierStart >= 0 ? m_modifierStart : start;
        m_modifierStart = -1;
        return last + 1;
    }
    const bool nameFollows = last + 1 < m_tokens.size() && (m_tokens[last + 1].kind == Token::Kind::Name ||
                                                            m_tokens[last + 1].kind == Token::Kind::Other);
    if ((nameFollows && isModifier(name)) || m_latin.isGroupOfNext(last)) {
        m_modifierStart = m_modifierStart < 0 ? start : m_modifierStart;
        return last;
    }
    static const CharacterSet familiar(u"姐哥总工叔");
    const bool titled = last + 1 < m_tokens.size() && m_tokens[last + 1].is(WordClass::Title) &&
                        (m_tokens[last + 1].length > 1 || // Novak博士, K姐
                         familiar.contains(m_text.at(m_tokens[last + 1].position)));
    addOne(start, name.size() + (titled ? m_tokens[last + 1].length : 0), true);
    last += titled ? 1 : 0;
    m_names.back().start = qMin(start, m_modifierStart >= 0 ? m_modifierStart : start);
    m_modifierStart = -1;
    return last;
}

std::size_t NameRunReader::takeKnownName(std::size_t at)
{
    const Token &token = m_tokens[at];
    if (at + 1 < m_tokens.size()) {
        const Token &next = m_tokens[at + 1];
        const QString rest = m_text.mid(next.position, next.length);
        const bool oneMore = next.kind == Token::Kind::Other && next.length == 1 && token.length < 3 &&
                             token.name.at(0).unicode() >= 0x80 && !isParticle(rest.at(0)) &&
                             !Lexicon::instance().classesOf(rest).has(WordClass::Title);
        if (oneMore) {
            addUnknown(token.position, m_text.mid(token.position, token.length + 1), true);
            return at + 1;
        }
    }
    addKnown(token, true);
    m_names.back().start = m_modifierStart >= 0 ? m_modifierStart : token.position;
    m_modifierStart = -1;
    return m_places.skipTitle(at);
}

} // namespace understanding
