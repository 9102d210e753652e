// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/namecollector.h"

#include "names/headreader.h"
#include "names/namecharacters.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "words/lexicon.h"

namespace understanding {

/// @p chunk without what ends a sentence and no name: 王总张伟 in 王总张伟吧.
static QString withoutModals(QString chunk)
{
    static const CharacterSet modals(u"吧呢啊呀了的吗嘛呗哈哦噢喔啦咯");
    while (chunk.size() > 2 && modals.contains(chunk.at(chunk.size() - 1))) {
        chunk.chop(1);
    }
    return chunk;
}

void NameCollector::addKnown(const Token &token, bool called)
{
    m_names.push_back(
        {token.position, token.position, m_raw.mid(token.position, token.length), token.name, called, false});
}

void NameCollector::addUnknown(int position, const QString &normal, bool called)
{
    int at = position;
    const QStringList names = splitNames(normal);
    for (const QString &name : names) {
        addOne(at, name.size(), called);
        at += name.size();
    }
}

void NameCollector::addOne(int position, int length, bool called)
{
    const QString said = m_raw.mid(position, length);
    m_names.push_back({position, position, said, said, called, holdsOtherThanLetters(said)});
}

void NameCollector::addRow(int position, const QStringList &names, bool called)
{
    const std::size_t before = m_names.size();
    int at = position;
    for (const QString &name : names) {
        addOne(at, name.size(), called);
        at += name.size();
    }
    m_names[before].start = m_modifierStart >= 0 ? m_modifierStart : position;
    m_modifierStart = -1;
}

void NameCollector::doubtLast()
{
    if (!m_names.empty()) {
        m_names.back().doubtful = true;
    }
}

void NameCollector::addChunk(int start, int end, bool mustLookLikeName, bool called)
{
    const QString chunk = m_text.mid(start, end - start);
    PeopleRow row = readPeopleRow(withoutModals(chunk));
    row = row.isWhole ? row : readPeopleRow(withoutParticles(chunk)); // 王总老王都
    if (row.isWhole) {
        addRow(start + chunk.indexOf(row.names.first()), row.names, called);
        return;
    }
    const int said = chunk.size() - modifierLength(chunk);
    const bool familiar = said == 2 && isNamePrefix(chunk.at(chunk.size() - 2)) &&
                          chunk.endsWith(QChar(u'于')); // 老于 in 采购的老于
    const bool whole = familiar || isWholeName(chunk, end) || (said == 3 && isWholeName(chunk.right(3), end));
    const bool known = // 对 in 对接人李娜 is no particle
        Lexicon::instance().classesOf(chunk.left(chunk.size() - said)).has(WordClass::Plain);
    QString name = whole || known ? chunk : withoutParticles(chunk);
    if (name.endsWith(QStringLiteral("的人"))) { // 市场部的人
        name.chop(2);
        if (name.endsWith(QStringLiteral("那边")) || name.endsWith(QStringLiteral("这边"))) { // 王总那边的人
            return;
        }
    }
    const int dash = name.indexOf(QLatin1Char('-'));
    if (dash > 1 && isPersonsName(name.left(dash)) && isModifier(name.mid(dash + 1))) { // 韩梅梅-市场部
        name.truncate(dash);
    }
    const int modifier = modifierLength(name);
    if (modifier > 0) {
        name = whole ? name.mid(modifier) : withoutParticles(name.mid(modifier));
    }
    if (name.size() < 2 || name.size() > LongestName ||
        (mustLookLikeName && m_modifierStart < 0 && !looksLikeName(name) && !isPeople(name))) {
        return;
    }
    if (Lexicon::instance().classesOf(name).has(WordClass::Nobody) || isThing(name) ||
        (name.size() == 2 && name.at(1) == QChar(u'不'))) { // 查不到
        return;
    }
    const int head = headLength(name);
    const QString behind = name.mid(head);          // 吃饭 in 叫张伟吃饭
    const bool titled = isSurnameWithTitle(behind); // 于老师 in 于谦于老师
    const bool cut = !titled && (withoutParticles(QStringLiteral("的的") + behind).size() > 2 ||
                                 (behind.size() > 1 && !withoutParticles(behind).isEmpty()));
    name.truncate(head);
    static const CharacterSet leads(u"约人"); // 约约王磊, 邀请人宋阳
    if (name.size() > 2 && leads.contains(name.at(0)) && isPersonsName(name.mid(1))) {
        name = name.mid(1);
    }
    const int offset = chunk.lastIndexOf(name);
    const bool described = modifier > 0 || m_modifierStart >= 0; // 云薇 in 、运维组的云薇
    const std::size_t before = m_names.size();
    if (modifier > 0 && isPersonsName(name)) {
        addOne(start + offset, name.size(), called);
    } else {
        addUnknown(start + offset, name, called);
    }
    if (m_names.size() > before) {
        m_names[before].start = m_modifierStart >= 0 ? m_modifierStart : start;
        m_modifierStart = -1;
    }
    for (std::size_t at = before; at < m_names.size(); ++at) {
        const QString &found = m_names[at].name;
        const bool strange = m_listed && !described && !looksLikeName(found) && !isModifier(found);
        const bool ofConference =
            end < m_text.size() && Lexicon::instance()
                                       .longestAt(m_text, end)
                                       .classes.intersects(WordClass::Conference | WordClass::Video);
        const bool onlyOf =
            chunk.endsWith(QChar(u'的')) && !ofConference && !isPersonsName(found); // 拉个懂技术的进来
        const bool timely = modifier > 0 && QStringLiteral("点午刻").contains(chunk.at(0)); // 点两王总
        m_names[at].doubtful = cut || timely || row.isUnclear || strange || onlyOf || !isLikelyName(found);
    }
}

bool NameCollector::isWholeName(const QString &chunk, int end) const
{
    static const CharacterSet enclosing(u"、,。;/和跟与及 ");
    static const CharacterSet never(u"没俩仨也都全等哈吧呢啊呀了的吗嘛呗参加");
    static const CharacterSet always(u"为可成能做");
    const bool closed = end == m_text.size() || enclosing.contains(m_text.at(end));
    return chunk.size() == 3 && isPersonsName(chunk) &&
           ((closed && !never.contains(chunk.at(2))) || always.contains(chunk.at(2)) || isGivenWord(chunk));
}

bool NameCollector::followsName(const Token &token) const
{
    return !m_names.empty() && m_names.back().position + m_names.back().said.size() == token.position;
}

bool NameCollector::isLostBefore(const Tokens &tokens, std::size_t at) const
{
    if (at == 0 || !tokens[at].is(WordClass::Separator) || tokens[at - 1].end() != tokens[at].position) {
        return false;
    }
    const bool found =
        !m_names.empty() && m_names.back().position + m_names.back().said.size() >= tokens[at].position;
    const Token &before = tokens[at - 1];
    static const CharacterSet light(u"的要先再就得去来想需能会可又还呢");
    const bool strange =
        (before.kind == Token::Kind::Other && !light.contains(m_text.at(before.end() - 1))) ||
        before.is(WordClass::Plain);
    static const CharacterSet speakers(u"我们咱");
    const bool speaker = before.is(WordClass::Request) && speakers.contains(m_text.at(before.end() - 1));
    const bool listed = // but not 给我、周舟
        m_text.at(tokens[at].position) == QChar(u'、') && !speaker && before.kind == Token::Kind::Word &&
        !before.isAny(WordClass::Nobody | WordClass::Conference | WordClass::NameTail | WordClass::Title);
    return !found && (strange || listed);
}

} // namespace understanding
