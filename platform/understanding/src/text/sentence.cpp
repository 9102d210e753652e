// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "text/sentence.h"

#include "text/characterset.h"
#include "text/rulefile.h"

#include <QHash>

namespace understanding {

namespace {

QHash<QChar, QChar> loadSpellings()
{
    QHash<QChar, QChar> spellings;
    // One pair per line: the character as typed and as the rules write it.
    const QStringList lines = ruleLines(QStringLiteral("characters.tsv"));
    for (const QString &line : lines) {
        spellings.insert(line.at(0), line.at(line.size() - 1));
    }
    return spellings;
}

QChar plainSpelling(QChar character)
{
    constexpr ushort fullWidthFirst = 0xff01; // '！'
    constexpr ushort fullWidthLast = 0xff5e;  // '～'
    constexpr ushort distanceToAscii = 0xfee0;
    const ushort code = character.unicode();
    if (code < 0x80) {
        return character == QLatin1Char('\t') ? QChar(QLatin1Char(' ')) : character;
    }
    if (code >= fullWidthFirst && code <= fullWidthLast) {
        return QChar(static_cast<ushort>(code - distanceToAscii));
    }
    static const QHash<QChar, QChar> spellings = loadSpellings();
    return spellings.value(character, character);
}

bool isChineseWord(QChar character)
{
    constexpr ushort firstIdeograph = 0x3400;
    static const CharacterSet digits(u"零〇一二两三四五六七八九十百幺");
    return character.unicode() >= firstIdeograph && character.isLetter() && !digits.contains(character);
}

/// True for a space that separates as a comma does, 我得撤了 退出会议, but not in 八八零 一零零 or before a
/// name (邀请 萧峰, 负责人 马腾).
bool separates(const QString &text, int space)
{
    if (text.at(space) != QLatin1Char(' ')) {
        return false;
    }
    static const CharacterSet introducing(u"请叫约和跟与同及让把将拉喊带上加给找人理师长管员任总号码为");
    static const CharacterSet starting(u"咱大开");             // 都叫上 咱们开会
    static const CharacterSet ending(u"了过呢啊吧吗嘛哈呀啦"); // 还没过 1月4号开会
    static const CharacterSet pleading(u"帮请麻劳快");         // 会议号是 802461357 帮我加入
    const QChar before = text.at(space - 1);
    const QChar behind = text.at(space + 1);
    if (before.isDigit()) {
        return pleading.contains(behind);
    }
    return isChineseWord(before) && (!introducing.contains(before) || starting.contains(behind)) &&
           (isChineseWord(behind) || (ending.contains(before) && behind.isLetterOrNumber()));
}

} // namespace

Sentence::Sentence(const QString &raw) : m_raw(raw), m_text(raw)
{
    for (QChar &character : m_text) {
        character = plainSpelling(character);
    }
    for (int at = 1; at + 1 < m_text.size(); ++at) {
        if (separates(m_text, at)) {
            m_text[at] = QLatin1Char(',');
        }
    }
}

} // namespace understanding
