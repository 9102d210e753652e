// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Replaces what was said before a repair (不对, 哦不, 应该是 ...) with what follows it, if both are of one
/// kind: 三点不对四点 becomes 四点 and keeps the day, 约小张不对约小王 becomes 小王. A repair with nothing to
/// replace stays, and the gate asks about it. 改成 is a repair unless it changes an existing conference:
/// 明天三点的会改成四点.
void applyRepairs(const QString &text, Tokens &tokens);

} // namespace understanding
