// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/headreader.h"

#include "names/namecharacters.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/rulefile.h"

#include <QHash>

#include <algorithm>

namespace understanding {

namespace {

constexpr int LongestRole = 4;
constexpr int LongestHead = 6; // 欧阳明远律师

/// The words of roles.txt; true for those behind which any two characters are a name.
const QHash<QString, bool> &roles()
{
    static const QHash<QString, bool> loaded = [] {
        QHash<QString, bool> all;
        const QStringList lines = ruleLines(QStringLiteral("roles.txt"));
        for (const QString &line : lines) {
            const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            for (const QString &word : words) {
                const bool kin = word.startsWith(QLatin1Char('*'));
                all.insert(kin ? word.mid(1) : word, kin);
            }
        }
        return all;
    }();
    return loaded;
}

bool endsWithRole(const QString &text)
{
    for (int length = qMin(LongestRole, text.size()); length > 0; --length) {
        if (roles().contains(text.right(length))) {
            return true;
        }
    }
    return false;
}

/// 部 in 安全部千寻: somebody follows. 司 and 院 begin names, too.
bool isOffice(QChar character)
{
    static const CharacterSet offices(u"部组处科室");
    return offices.contains(character);
}

/// 小, 老 and 阿: 大 makes a title as often as a name (一灯大师).
bool isFamiliar(QChar character)
{
    return isNamePrefix(character) && character != QChar(u'大');
}

} // namespace

bool isModifier(const QString &text)
{
    // 陪审员, 委托人, 供应处: whatever ends so tells what somebody does.
    static const CharacterSet callings(u"师长生人手士班队社站方");
    static const CharacterSet inNoName(u"员者部组处科室院校厂店局所"); // 公证员
    const QChar last = text.isEmpty() ? QChar() : text.at(text.size() - 1);
    const bool calling =
        text.size() > 2 && (inNoName.contains(last) || (callings.contains(last) && !isPersonsName(text)));
    return text.endsWith(QChar(u'的')) || ((calling || endsWithRole(text)) && !isSurnameWithTitle(text));
}

bool isRelative(const QString &text)
{
    return roles().value(text, false);
}

int modifierLength(const QString &text)
{
    const int of = text.lastIndexOf(QChar(u'的'));
    const int start = of >= 0 && of + 2 < text.size() ? of + 1 : 0;
    const QString rest = text.mid(start);
    for (int length = 2; length <= qMin(LongestHead, rest.size() - 1); ++length) {
        const int cut = rest.size() - length;
        if (isModifier(rest.left(cut)) && isPersonsName(rest.mid(cut))) {
            return start + cut;
        }
    }
    // 物理老师亚历山大
    constexpr int shortestForeign = 3;
    constexpr int longestForeign = 8;
    for (int length = qMin(longestForeign, rest.size() - 2); length >= shortestForeign; --length) {
        const int cut = rest.size() - length;
        if (isTransliterated(rest.mid(cut)) && isModifier(rest.left(cut))) {
            return start + cut;
        }
    }
    // 蓝海李工: what stands before somebody's title is where they work.
    for (int length = 2; length <= 4 && rest.size() - length >= 1; ++length) {
        const int cut = rest.size() - length;
        const QString left = rest.left(cut);
        if (cut == 1 && !isOffice(left.at(0))) { // 处冉秘书 of 秘书处冉秘书
            continue;
        }
        const bool ofSomebody = isNamePrefix(left.at(0)) || isPersonsName(left.left(2)) || cut > 4;
        if (!ofSomebody && isSurnameWithTitle(rest.mid(cut))) {
            return start + cut;
        }
    }
    // 中介小李: nobody else begins so.
    constexpr int shortest = 4;
    const int familiar = rest.size() - 2;
    if (rest.size() >= shortest && isFamiliar(rest.at(familiar)) && !looksLikeName(rest.left(3))) {
        return start + familiar;
    }
    // 实习生芳姐
    static const CharacterSet familiars(u"姐哥叔嫂");
    const bool titled =
        familiar >= 2 && familiars.contains(rest.at(rest.size() - 1)) && !isFamiliar(rest.at(familiar));
    if (titled && isModifier(rest.left(familiar)) && !roles().contains(rest.mid(familiar))) {
        return start + familiar;
    }
    // 法务海洋, 测试组圆圆: any two or three characters behind a calling.
    constexpr int longestCalling = 6;
    for (int length = 2; rest.size() >= shortest && length <= 3; ++length) {
        const int left = rest.size() - length;
        const bool called = left >= 2 && left <= longestCalling && endsWithRole(rest.left(left));
        const bool office = isOffice(rest.at(left - 1)); // 安全部千寻
        if (called && !endsWithRole(rest) && (office || !looksLikeName(rest)) &&
            (office || !isPersonsName(rest.left(left)))) {
            return start + left;
        }
    }
    // 闺女秀英, 外孙女朵朵: the given name alone; 隔壁二婶: nothing but a relative.
    const int cut = rest.size() - 2;
    if (cut > 0 && roles().value(rest.mid(cut), false) && isModifier(rest.left(cut))) {
        return start + cut;
    }
    for (int length = qMin(LongestRole, cut); length > 0; --length) {
        if (roles().value(rest.mid(cut - length, length), false) && !roles().contains(rest.mid(cut))) {
            return start + cut;
        }
    }
    return start;
}

QString dottedName(const QString &text)
{
    static const CharacterSet leads(u"是的位叫请把");
    int cut = 0;
    for (int character = 0; text.at(character) != QChar(u'·'); ++character) {
        cut = leads.contains(text.at(character)) ? character + 1 : cut;
    }
    const QString said = text.mid(cut);
    const bool whole = said.endsWith(QStringLiteral("阿不都")) || said.endsWith(QStringLiteral("阿布都"));
    QString name = whole ? said : withoutParticles(said);
    for (int length = name.indexOf(QChar(u'·')) - 2; length >= 2; --length) { // 人事部安娜·卡列尼娜
        if (isModifier(name.left(length))) {
            return name.mid(length);
        }
    }
    return name;
}

int headLength(const QString &name)
{
    static const CharacterSet verbs(
        u"也都没薅整下出回去来说吃喝玩打看做写买送聊谈拉约让叫喊呗请找搞问想要进入");
    if (isSurnameWithTitle(name) || isTransliterated(name) || isGivenWord(name)) { // 张顾问
        return name.size();
    }
    for (int at = 2; at < name.size(); ++at) {
        if (name.at(at) == name.at(0) && isSurnameWithTitle(name.mid(at)) && isPersonsName(name.left(at))) {
            return at; // 于谦于老师
        }
        if (verbs.contains(name.at(at)) && isPersonsName(name.left(at))) {
            return at;
        }
    }
    return name.size();
}

bool isLikelyName(const QString &name)
{
    constexpr int longestName = 5; // 乌兰图雅
    static const CharacterSet strange(
        u"薅去说吃喝打看做写送聊谈让叫喊呗请找搞问想要进入把给是没不了过吗呢吧的");
    static const CharacterSet timely(u"点刻半"); // 半约 in 十点半约半约李娜, but not 点点
    const bool ofTime = timely.contains(name.at(0)) && name.at(0) != name.at(name.size() - 1);
    if (ofTime || holdsOtherThanLetters(name)) { // 张伟3.5点
        return false;
    }
    if (name.contains(QChar(u'俩')) || name.contains(QChar(u'仨'))) { // 法务那俩律师
        return false;
    }
    if (name.size() > 2 && isNamePrefix(name.at(0)) && name.endsWith(QChar(u'点'))) { // 小声点
        return false;
    }
    const bool latin =
        std::any_of(name.cbegin(), name.cend(), [](QChar character) { return character.unicode() < 0x250; });
    if (latin || name.contains(QChar(u'·')) || isPersonsName(name) || endsWithRole(name)) {
        return true;
    }
    const bool clean =
        std::none_of(name.cbegin(), name.cend(), [](QChar character) { return strange.contains(character); });
    return clean && (name.size() <= longestName || looksLikeName(name) || isTransliterated(name));
}

} // namespace understanding
