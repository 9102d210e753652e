// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/absences.h"

#include "names/namelook.h"
#include "text/characterset.h"
#include "time/timereader.h"

#include <QRegularExpression>

#include <algorithm>

namespace understanding {

static bool isName(const QString &text, const ContactIndex &contacts)
{
    static const QRegularExpression latin(QStringLiteral("^[A-Z][A-Za-z]+( [A-Z][A-Za-z]+)*$"));
    static const CharacterSet verbs(u"说叫讲问要给让家批订定办"); // 老板叫, 小凯说
    constexpr int titled = 2;                                     // 王总 begins 王总批
    constexpr int longest = 3;
    const bool more = text.size() > titled && isSurnameWithTitle(text.left(titled));
    if (text.isEmpty() || readTime(text, 0).length == text.size()) { // 周三
        return false;
    }
    return contacts.longestAt(text, 0) == text || isSurnameWithTitle(text) || latin.match(text).hasMatch() ||
           (!more && !isThing(text) && text.size() <= longest && !verbs.contains(text.back()) &&
            (isPersonsName(text) || looksLikeName(text)));
}

QString callPattern()
{
    return QStringLiteral("(?:(?:约|叫|跟|和|找|请|带|喊|拉|邀请)上?)");
}

QString leadPattern()
{
    return QStringLiteral(
        "(?:[那就还是哦嗯哎啊呃呀先但]|要不|帮我|今天|干脆|所以|不过|可是|结果|不对|因为|由于|对了|算了|不行|"
        "等等|听说|估计)*");
}

QString leftOutPattern()
{
    return QStringLiteral("(?:(?<![预打结决核])算|免|[不别甭](?:用|要|必)?再?%1|不[来去要用]|不用?参加|不必|"
                          "不用[来去]|不参会|不加入|"
                          "不需要|不包括|不用?打扰|别打扰|不麻烦|不进来?|除外|缺席|改天|退出|换掉?|去掉|划掉|"
                          "(?:来|去|到|参加|赶)不[了成上])")
        .arg(callPattern());
}

QString leavingOutPattern()
{
    return QStringLiteral(
               "(?:不是|不用?等|不要%1?|不[用必]%1?|[不别甭]%1|去掉|删掉|划掉|换掉|除了|除去|不包括|没有|"
               "别告诉)")
        .arg(callPattern());
}

QString busyPattern()
{
    return QStringLiteral(
        "(?:没空|没时间|没法来|有(?:急?事儿?|课|约|安排|[个场]?会)|请假|休产?假|出差|[在去]外地|(?<!在)不在|"
        "走不开|[抽脱]不开身?|在?(?<![帮不])忙|很忙|忙着|不方便|不舒服|生病|病了|下班|走|(?<!现)在开(?:车|会|"
        "别的会)"
        "|在?上课|在(?:飞机|路)上|联系不上|要出差|要?接孩子|来不及|(?<!行)不行)");
}

bool hasWordOfAbsence(const QString &text)
{
    static const CharacterSet characters(u"不没别甭免算缺假差忙病走课除掉删换有班改退划孩路飞外");
    return characters.meets(text) || text.contains(QStringLiteral("在开"));
}

QStringList namesOf(const QString &text, const ContactIndex &contacts)
{
    static const QRegularExpression links(QStringLiteral("[和与跟及、]|还有"));
    QStringList names;
    const QStringList parts = text.split(links);
    for (const QString &part : parts) {
        const bool whole = part.isEmpty() || contacts.longestAt(part, 0) == part;
        names += whole ? QStringList(part) : splitNames(part);
    }
    const bool only = std::all_of(names.cbegin(), names.cend(),
                                  [&](const QString &name) { return isName(name, contacts); });
    return only ? names : QStringList();
}

} // namespace understanding
