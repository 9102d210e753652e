// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/namelook.h"

#include "names/namecharacters.h"
#include "text/characterset.h"
#include "text/rulefile.h"
#include "words/lexicon.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <limits>

namespace understanding {

namespace {

constexpr int LongestFullName = 4;

/// How common @p character is as a family name, 0 being the most common; -1 for none.
int surnameRank(QChar character)
{
    static const QHash<QChar, int> ranks = [] {
        QHash<QChar, int> loaded;
        const QStringList lines = ruleLines(QStringLiteral("surnames.txt"));
        for (const QString &line : lines) {
            for (const QChar surname : line) {
                if (!loaded.contains(surname)) {
                    loaded.insert(surname, loaded.size());
                }
            }
        }
        return loaded;
    }();
    return ranks.value(character, -1);
}

bool isSurname(QChar character)
{
    return surnameRank(character) >= 0;
}

bool isLatinName(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar character) { return character.unicode() < 0x80; });
}

bool endsLikeName(const QString &text)
{
    static const QStringList endings =
        QStringLiteral("部 部门 组 团队 中心 总 工 老师 经理 主任 哥 姐 博士 教授 科 处 "
                       "同学 先生 女士 总监 公司 总部 办公室 集团 事业部 学院 小组")
            .split(QLatin1Char(' '));
    return std::any_of(endings.cbegin(), endings.cend(), [&](const QString &ending) {
        return text.size() > ending.size() && text.endsWith(ending);
    });
}

bool startsTwoCharacterSurname(const QString &text)
{
    static const QStringList surnames =
        QStringLiteral("欧阳 司马 诸葛 上官 司徒 东方 夏侯 皇甫 令狐 尉迟 公孙 慕容 端木 "
                       "南宫 独孤 百里 宇文 长孙 呼延 万俟 澹台 钟离 闻人 赫连 轩辕 淳于 "
                       "拓跋 完颜 纳兰 西门 田中 山本 佐藤 铃木 渡边 伊藤 中村 吉田 山田 "
                       "松本 斋藤 藤田")
            .split(QLatin1Char(' '));
    static const CharacterSet beginnings = [] {
        QString all;
        for (const QString &surname : surnames) {
            all += surname.at(0);
        }
        return CharacterSet(all);
    }();
    return text.size() > 1 && beginnings.contains(text.at(0)) && surnames.contains(text.left(2));
}

} // namespace

bool isNamePrefix(QChar character)
{
    static const CharacterSet prefixes(u"小老阿大");
    return prefixes.contains(character);
}

bool isThing(const QString &text)
{
    static const QSet<QString> things = [] {
        QSet<QString> all;
        const QStringList lines = ruleLines(QStringLiteral("things.txt"));
        for (const QString &line : lines) {
            const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            for (const QString &word : words) {
                all.insert(word);
            }
        }
        return all;
    }();
    return things.contains(text);
}

bool isTransliterated(const QString &text)
{
    static const CharacterSet spelling(
        u"阿不布卜都杜拉热合曼买提艾力尔江古丽娜扎努兰汗木依巴哈里克迪米尼斯特夫维奇马丁亚历山大伯纳德"
        "罗伊莎贝玛莉雅乔治约翰查理安托托蒂彼得保尔森逊姆格萨穆罕默帕沙吾吐买孜帕其旺次仁扎西顿珠卓嘎央金"
        "多吉洛桑达娃才让加措桑图雅乌云萨日朗苏和巴特尔吉勒本田中藤佐木村松岛川海");
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar character) { return spelling.contains(character); });
}

/// True for what is used in hardly anything but given names.
static bool isInGivenNames(QChar character)
{
    static const CharacterSet given(
        u"涵轩梓浩然宇欣怡婷雪琳娜娟芳燕霞英华兰玲秀丽凤桂珍梅艳敏静洁慧颖倩莉雯佳俊杰强伟军磊涛勇峰鹏"
        "辉斌亮志国建晓淑瑞凯晨阳旭睿博嘉思雨诗彤萱瑶琪璐薇蕾蓉菲妍媛茜翠莲蓓丹萍玉香子");
    return given.contains(character);
}

/// 子涵, 晓峰, 乐乐: a given name alone, of such characters, or a pet name.
static bool isGivenName(const QString &text)
{
    const bool spelled = text.size() == 2 && isInGivenNames(text.at(0)) && isInGivenNames(text.at(1));
    const bool doubled =
        text.size() == 2 && text.at(0) == text.at(1) && text.at(0).isLetter() && text.at(0) != QChar(u'某');
    return (spelled || doubled) && !isThing(text);
}

bool looksLikeName(const QString &text)
{
    if (text.size() < 2) {
        return false;
    }
    if (isLatinName(text)) {
        return text.at(0).isLetter();
    }
    constexpr int shortestForeign = 3;
    if (endsLikeName(text) || startsTwoCharacterSurname(text) || isGivenName(text) ||
        (text.size() >= shortestForeign && isTransliterated(text))) {
        return true;
    }
    return text.size() <= LongestFullName &&
           (isSurname(text.at(0)) ||
            (text.size() <= 3 && (isNamePrefix(text.at(0)) || text.at(0) == QChar(u'二'))));
}

bool isSurnameWithTitle(const QString &text)
{
    if (text.size() < 2 || !isSurname(text.at(0))) {
        return false;
    }
    const int surname = startsTwoCharacterSurname(text) ? 2 : 1;
    return text.size() > surname && Lexicon::instance().classesOf(text.mid(surname)).has(WordClass::Title);
}

bool isPersonsName(const QString &text)
{
    if (isSurnameWithTitle(text)) {
        return true;
    }
    for (const int title : {2, 3}) { // 沈佳宜律师
        const int length = text.size() - title;
        if (length >= 2 && length <= LongestFullName && isSurname(text.at(0)) &&
            (length <= 3 || startsTwoCharacterSurname(text)) &&
            Lexicon::instance().classesOf(text.right(title)).has(WordClass::Title)) {
            return true;
        }
    }
    if (startsTwoCharacterSurname(text)) {
        return text.size() == 3 || text.size() == 4;
    }
    // 小鹿姐
    if (text.size() == 3 && isNamePrefix(text.at(0)) &&
        Lexicon::instance().classesOf(text.right(1)).has(WordClass::Title)) {
        return true;
    }
    if (text.size() == 3 && isNamePrefix(text.at(0)) && startsTwoCharacterSurname(text.mid(1))) { // 小诸葛
        return true;
    }
    // 小王老师
    if (text.size() == 4 && isNamePrefix(text.at(0)) && isSurname(text.at(1)) &&
        Lexicon::instance().classesOf(text.right(2)).has(WordClass::Title)) {
        return true;
    }
    return (text.size() == 2 && isNamePrefix(text.at(0))) ||
           ((text.size() == 2 || text.size() == 3) && isSurname(text.at(0)));
}

namespace {

/// The length of the name at @p at in a row of names, 0 for none. The next one must begin with a family name;
/// if both lengths fit, the more common family name decides (李雷韩梅梅).
int nameLengthAt(const QString &text, int at)
{
    int length = 0;
    int bestRank = std::numeric_limits<int>::max();
    for (const int candidate : {2, 3}) {
        const int end = at + candidate;
        const bool isLast = end == text.size();
        const int rank = isLast ? 0 : end + 2 <= text.size() ? surnameRank(text.at(end)) : -1;
        if (rank >= 0 && rank < bestRank) {
            bestRank = rank;
            length = candidate;
        }
    }
    return length;
}

} // namespace

/// 老婆 in 小李老婆, 大师 in 小赵大师: whose or what somebody is, not somebody else.
static bool isRoleOrKin(const QString &text)
{
    static const CharacterSet others(u"婆公伴师板");
    const QChar last = text.at(text.size() - 1);
    return isKin(last) || others.contains(last) || Lexicon::instance().classesOf(text).has(WordClass::Title);
}

/// 小蔡小高, 大乔小乔: each begins with a familiar prefix.
static QStringList splitFamiliarNames(const QString &text)
{
    if (endsLikeName(text)) { // 老王小组
        return {};
    }
    QStringList names;
    for (int at = 0; at < text.size(); at += 2) {
        const QString name = text.mid(at, 2);
        const bool titled = at > 0 && isRoleOrKin(name); // 小王老师
        if (name.size() < 2 || titled || !isNamePrefix(name.at(0)) || isNamePrefix(name.at(1))) {
            return {};
        }
        names.append(name);
    }
    return names;
}

/// The length of whoever stands at @p at and can be nobody else: 王总, 小李, 小王老师; 0 for none.
static int clearPersonLength(const QString &text, int at)
{
    const auto titleAt = [&](int position) {
        const WordMatch word = Lexicon::instance().longestAt(text, position);
        return word.classes.has(WordClass::Title) ? word.length : 0;
    };
    const QChar first = text.at(at);
    if (isNamePrefix(first) && first != QChar(u'大')) {
        static const CharacterSet inNoName(u"组队班区店孩学时");
        const QString name = text.mid(at, 2);
        if (name.size() < 2 || !name.at(1).isLetter() || isNamePrefix(name.at(1)) ||
            inNoName.contains(name.at(1)) || isRoleOrKin(name)) {
            return 0;
        }
        return isSurname(name.at(1)) ? 2 + titleAt(at + 2) : 2;
    }
    const int surname = startsTwoCharacterSurname(text.mid(at, 2)) ? 2 : 1;
    const int title = isSurname(first) ? titleAt(at + surname) : 0;
    return title > 0 ? surname + title : 0;
}

/// 张伟王总, 老王张伟: two people whom nothing but a family name tells apart.
static bool mayBeTwo(const QString &text)
{
    if (isNamePrefix(text.at(0))) {
        const QString rest = text.mid(2);
        return rest.size() > 1 && text.at(0) != QChar(u'大') && isSurname(text.at(1)) &&
               isSurname(rest.at(0)) && !isNamePrefix(rest.at(0)) && rest.size() <= 3 && !isThing(rest) &&
               !isRoleOrKin(rest) && !endsLikeName(rest) && clearPersonLength(text, 0) == 2;
    }
    const int surname = startsTwoCharacterSurname(text) ? 2 : 1;
    const int title = text.size() - 1;
    constexpr int longestGivenName = 2;
    if (!isSurname(text.at(0)) || title < surname + 2 || title > surname + longestGivenName + 1 ||
        clearPersonLength(text, title - 1) != 2) { // 韩梅梅女士 is one
        return false;
    }
    return std::all_of(text.cbegin() + surname, text.cbegin() + title - 1, isInGivenNames); // not 蓝海李工
}

PeopleRow readPeopleRow(const QString &text)
{
    PeopleRow row;
    if (isTransliterated(text)) { // 阿依古丽
        return row;
    }
    bool titled = false; // 小林正夫 may be one name, 王总张伟 is none
    int at = 0;
    while (at < text.size()) {
        const int length = clearPersonLength(text, at);
        if (length == 0) {
            break;
        }
        titled = titled || !isNamePrefix(text.at(at));
        row.names.append(text.mid(at, length));
        at += length;
    }
    const int shortestTitled = 3;
    const bool begins =
        row.names.size() > 1 || (titled && row.names.first().size() >= shortestTitled); // 张老师
    const QString rest = text.mid(at);
    if (rest.size() > 1 && (row.names.size() > 1 || titled) && !isNamePrefix(rest.at(0)) && !isThing(rest) &&
        isPeople(rest) && !endsLikeName(rest)) {
        row.names += splitNames(rest);
        at = text.size();
    }
    row.isWhole = at == text.size() && row.names.size() > 1;
    row.isUnclear = !row.isWhole && ((at < text.size() && begins && !endsLikeName(text)) || mayBeTwo(text));
    return row;
}

QStringList splitNames(const QString &text)
{
    constexpr int shortestList = 4;
    const QStringList familiar = text.size() < shortestList ? QStringList() : splitFamiliarNames(text);
    if (!familiar.isEmpty()) {
        return familiar;
    }
    static const CharacterSet titles(u"总工哥姐");
    // With a family name of two characters, four are one name.
    if (text.size() < 4 || text.size() > 12 || startsTwoCharacterSurname(text) || !isSurname(text.at(0)) ||
        isSurnameWithTitle(text)) { // 周工程师
        return {text};
    }
    if (endsLikeName(text) && !titles.contains(text.at(1))) { // 张总李总 are two, 孙中山中心 is one
        return {text};
    }
    QStringList names;
    int at = 0;
    while (at < text.size()) {
        const int length = nameLengthAt(text, at);
        if (length == 0) {
            return {text};
        }
        names.append(text.mid(at, length));
        at += length;
    }
    return names;
}

bool isPeople(const QString &text)
{
    const QStringList names = splitNames(text);
    return std::all_of(names.cbegin(), names.cend(), isPersonsName);
}

QString withoutParticles(const QString &text)
{
    static const CharacterSet leading(u"的也都再就先在要想了个位请给对着还又把将跟是有帮替");
    static const CharacterSet trailing(u"也都全来去再就先在要想等的给吧呢啊呀了过到于得能可需将又"
                                       "还会用里并且吗嘛上下把做成为参加约让呗哈没俩仨哦噢喔啦咯");
    int start = 0;
    int end = text.size();
    // Keep at least two characters: 王来 is a name.
    while (end - start > 2 && leading.contains(text.at(start))) {
        ++start;
    }
    // 林可可 keeps both, 尤里 its 里.
    static const CharacterSet foreign(u"尤阿凯亚玛马古卡基托费");
    while (end - start > 2 && trailing.contains(text.at(end - 1)) &&
           !(text.at(end - 1) == QChar(u'里') && foreign.contains(text.at(end - 2))) &&
           !(end - start == 3 && text.at(end - 1) == text.at(end - 2))) {
        --end;
    }
    const QString rest = text.mid(start, end - start);
    if (rest.size() > 2 || rest.isEmpty()) {
        return rest;
    }
    const bool onlyParticles = std::all_of(rest.cbegin(), rest.cend(), [&](QChar character) {
        return leading.contains(character) || trailing.contains(character);
    });
    return onlyParticles ? QString() : rest;
}

bool isGivenWord(const QString &text)
{
    static const QSet<QString> words = {QStringLiteral("开来"), QStringLiteral("梦想"),
                                        QStringLiteral("理想")};
    return text.size() == 3 && isSurname(text.at(0)) && words.contains(text.right(2));
}

bool isParticle(QChar character)
{
    return withoutParticles(QString(character) + character).isEmpty();
}

} // namespace understanding
