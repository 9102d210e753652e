// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Lets what follows 不对, 哦不, 应该是 ... take the place of what was said before of the same kind:
/// 三点不对四点 is 四点 and keeps the day, 约小张不对约小王 is 小王. A repair that finds nothing to replace
/// stays, and the gate asks about it. 改成 is one only while something is being set up: 明天三点的会改成四点
/// changes a conference that exists.
void applyRepairs(const QString &text, Tokens &tokens);

} // namespace understanding
