// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/namecharacters.h"

#include "text/characterset.h"
#include "text/scan.h"

#include <QVector>

#include <algorithm>

namespace understanding {

bool isSpeaker(QChar character)
{
    static const CharacterSet speakers(u"我咱俺");
    return speakers.contains(character);
}

bool isKin(QChar character)
{
    static const CharacterSet kin(u"妈爸娘爹姐哥弟妹爷奶姨舅叔伯姑婶嫂");
    return kin.contains(character);
}

bool endsGroup(QChar character)
{
    static const CharacterSet groups(u"部门组处科室班委队院校厂店社团局所站司心系级届区间舍");
    return groups.contains(character);
}

bool holdsOtherThanLetters(const QString &name)
{
    static const CharacterSet joining(u" ·.'’‘´`-_@+");
    constexpr ushort endOfLatin = 0x250;
    const bool latin = std::all_of(name.cbegin(), name.cend(), [](QChar character) {
        return character.unicode() < endOfLatin || joining.contains(character);
    });
    const QVector<uint> characters = name.toUcs4();
    return std::any_of(characters.cbegin(), characters.cend(), [&](uint character) {
        const bool joins = character <= 0xffff && joining.contains(QChar(static_cast<ushort>(character)));
        return !QChar::isLetter(character) && !joins && !(latin && QChar::isDigit(character));
    });
}

int givenNameWithOne(const QString &text, int position)
{
    return firstOf(
        text, position,
        {u"一凡", u"一诺", u"一鸣", u"一帆", u"一航", u"一涵", u"一菲", u"一博", u"一休哥", u"一休"});
}

} // namespace understanding
