// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace understanding {

/// True when @p text looks like the name of a person or a team: 赵云, 小李, 王总, 产品部, Jerry.
bool looksLikeName(const QString &text);

/// True for 小, 老, 阿 and 大, which make a familiar name: 小李.
bool isNamePrefix(QChar character);

/// True for what looks like a name but is none: 项目, 方案, 周报.
bool isThing(const QString &text);

/// True for 阿布都热合曼 and 克里斯蒂安娜: nothing but characters that spell foreign names.
bool isTransliterated(const QString &text);

/// True for a family name with a title: 王总, 张老师, 欧阳主任.
bool isSurnameWithTitle(const QString &text);

/// True for the name of one person and nothing else: a family name with one or two characters or a title,
/// 小李.
bool isPersonsName(const QString &text);

/// Splits @p text where each part begins with a family name (赵云马超) or a prefix (小蔡小高); otherwise
/// returns it whole.
QStringList splitNames(const QString &text);

/// People in a row without signs between them, told apart by titles and prefixes: 王总老王小李张老师.
struct PeopleRow
{
    QStringList names;      ///< in the order in which they were said
    bool isWhole = false;   ///< at least two, and nothing else was said
    bool isUnclear = false; ///< what stands behind them is nobody who can be told apart: 王总老王强
};
PeopleRow readPeopleRow(const QString &text);

/// True for one person or several in a row: 李娜, 李娜王芳.
bool isPeople(const QString &text);

/// @p text without the little words around a name: 也, 来, 的.
QString withoutParticles(const QString &text);

/// True for a character that withoutParticles() takes away: 也, 来.
bool isParticle(QChar character);

/// True for a family name before a given name that is a word ending in a verb: 夏梦想, 李开来.
bool isGivenWord(const QString &text);

} // namespace understanding
