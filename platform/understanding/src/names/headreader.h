// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// The length of the description before the name in @p text (产品经理 in 产品经理吴迪, 研发部的 in
/// 研发部的赵云); 0 if there is none. Reads from the right: the head is the name.
int modifierLength(const QString &text);

/// True when @p text ends with a word that describes a person: 高级工程师, 研发部, 美国那边的.
bool isModifier(const QString &text);

/// True for a word for a relative or a close friend, behind which a given name may stand alone: 表妹, 外甥女.
bool isRelative(const QString &text);

/// The length of the actual name in @p name: 王磊 in 王磊去打球, 欧阳经理 in 欧阳经理让.
int headLength(const QString &name);

/// True for what may well be a name: a person's name, a role, Latin letters, or a few characters without a
/// verb or particle among them.
bool isLikelyName(const QString &name);

/// The dotted name at the end of @p text, which must contain a middle dot: 丽莎·张 in 人事部的丽莎·张.
QString dottedName(const QString &text);

} // namespace understanding
