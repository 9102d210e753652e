// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

namespace understanding {

// Reasons to doubt that something is wanted now, whatever the clauses of the sentence say.

/// 让张伟退出会议, 会议结束的时间, 我可以退会吗: the speaker does not order to leave.
[[nodiscard]] bool isLeftByOther(const Reading &reading);

/// 明天的会我去: tells who goes, but does not ask to join now.
[[nodiscard]] bool onlyGoes(const Reading &reading);

/// 我昨天进的会议是123456, 加一下老同学，号码13711112222: a number, but no order to join it.
[[nodiscard]] bool isNumberOfOther(const Reading &reading);

/// True for 一三八零，零一三八: one number cut in two, or two of them.
[[nodiscard]] bool holdsSeveralNumbers(const Reading &reading);

/// 如果明天下雨，帮我开会: what depends on something is not wanted now.
[[nodiscard]] bool isConditional(const Reading &reading);

/// 明天有会吗，要是没有我就去钓鱼: true if a question stands in a clause before the condition.
[[nodiscard]] bool asksBeforeCondition(const Reading &reading);

/// True for 如果, 只要 and their like.
[[nodiscard]] bool isCondition(const QString &word);

/// 标题就写, 通知上说: what follows the clause between the tokens @p begin and @p end is not the speaker's
/// own.
[[nodiscard]] bool introducesQuote(const QString &text, const Tokens &tokens, std::size_t begin,
                                   std::size_t end);

/// 要不要退会, 是不是该开个会了: asks whether to do it.
[[nodiscard]] bool wonders(const Reading &reading);

/// 是不是该开个会了, unlike 明天是不是要开会, which asks what there is.
[[nodiscard]] bool proposesOpening(const Reading &reading);

} // namespace understanding
