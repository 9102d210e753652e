// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "text/sentence.h"

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

} // namespace

Sentence::Sentence(const QString &raw) : m_raw(raw), m_text(raw)
{
    for (QChar &character : m_text) {
        character = plainSpelling(character);
    }
}

} // namespace understanding
