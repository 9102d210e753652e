// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// Length of what stands before the person in @p text and says who it is (产品经理 in 产品经理吴迪, 研发部的
/// in 研发部的赵云); 0 where the name begins at once. Read from the right: the head is the name.
int modifierLength(const QString &text);

/// True when @p text ends with a word that describes a person: 高级工程师, 研发部, 美国那边的.
bool isModifier(const QString &text);

/// True for a word for a relative or a close friend, behind which a given name may stand alone: 表妹, 外甥女.
bool isRelative(const QString &text);

/// How much of @p name is somebody's name: 王磊 of 王磊去打球, 欧阳经理 of 欧阳经理让.
int headLength(const QString &name);

/// True for what may well be a name: two or three characters that are no verb, a family name with a given
/// one.
bool isLikelyName(const QString &name);

/// The name with a dot at the end of @p text, which holds one: 丽莎·张 in 人事部的丽莎·张.
QString dottedName(const QString &text);

} // namespace understanding
