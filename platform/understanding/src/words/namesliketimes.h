// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timereader.h"
#include "words/token.h"

namespace understanding {

/// True where exactly one character stands that no rule knows: 鸣 in 周一鸣开会, but not 预热 in 周三预热会.
bool isSingleStranger(const QString &text, int at);

/// True right behind a family name, the last of @p tokens: 董 in 居委会的董明晨, but not in 张董明晨, where
/// it is a title.
bool isBehindFamilyName(const QString &text, const Tokens &tokens);

/// True right behind the last of @p tokens where one more character makes it the name of somebody who is
/// called: 刚 in 和张刚开会, 新 in 邀请朱立新加入会议.
bool isEndOfGivenName(const QString &text, const Tokens &tokens);

/// True where @p match, found at @p at behind @p tokens, is part of an unknown name: 和周一鸣, 和高明早上.
bool isInUnknownName(const QString &text, const Tokens &tokens, int at, const TimeMatch &match);

} // namespace understanding
