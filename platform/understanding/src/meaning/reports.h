// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

namespace understanding {

// Sentences that tell of a conference and order nothing.

/// 会议三点开始 tells, 开个会，三点开始 orders.
[[nodiscard]] bool tellsBeginning(const Reading &reading);

/// 家长会是周四晚上七点, 班会在周五下午: it is known when the conference is, and nobody opens one.
[[nodiscard]] bool tellsWhen(const Reading &reading);

/// 123456789是张伟的会议号 tells whose it is.
[[nodiscard]] bool tellsWhoseNumber(const Reading &reading);

/// 记得三点开会, 别忘了三点开会: somebody is reminded.
[[nodiscard]] bool reminds(const Reading &reading);

/// 下次开会记得叫我, 有空一起开会啊, 你能开会吗, 我先开会, 会议三点到五点: sets no time, or gives no order.
[[nodiscard]] bool onlySpeaksOf(const Reading &reading);

/// 跟张伟约好明天三点开会: it has been agreed already; 约好张伟明天三点开会 orders it.
[[nodiscard]] bool tellsAgreement(const Reading &reading);

/// 我们约的是三点开会, 我和王总定的四点开会, 三点开会来着: it has been settled, or was so.
[[nodiscard]] bool tellsWhatWasSet(const Reading &reading);

/// 明天是和张伟开会, 我是三点开会: tells what is so, unlike 时间是三点, which orders it.
[[nodiscard]] bool statesWhatIs(const Reading &reading);

/// 让张伟自己开会, 让他们俩开会, 你和张伟开会: others are to meet, perhaps without the speaker.
[[nodiscard]] bool sendsOthersOnly(const Reading &reading);

/// 三点散会, 一会儿退会, 明天邀请张伟: what is only done at once, but not now.
[[nodiscard]] bool isForLater(const Reading &reading, const QString &intent);

} // namespace understanding
