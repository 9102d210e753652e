// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

namespace understanding {

// What makes it doubtful that something is wanted now, whatever the clauses of the sentence say.

/// 让张伟退出会议, 会议结束的时间, 我可以退会吗: nobody leaves but who orders it.
[[nodiscard]] bool isLeftByOther(const Reading &reading);

/// 明天的会我去: who goes, not that it is to be joined now.
[[nodiscard]] bool onlyGoes(const Reading &reading);

/// 我昨天进的会议是123456, 加一下老同学，号码13711112222: a number, but nobody orders to join it.
[[nodiscard]] bool isNumberOfOther(const Reading &reading);

/// True for 一三八零，零一三八: one number cut in two, or two of them.
[[nodiscard]] bool holdsSeveralNumbers(const Reading &reading);

/// 如果明天下雨，帮我开会: what depends on something is not wanted now.
[[nodiscard]] bool isConditional(const Reading &reading);

} // namespace understanding
