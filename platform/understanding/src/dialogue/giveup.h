// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"
#include "meaning/reading.h"

namespace understanding {

/// True for a sentence that only ends a question: 算了, 取消吧.
bool isGiveUp(const Reading &reading);

/// True if @p reading, read as @p fresh, ends any question, although it may say more: 算了，我再问问;
/// 妈妈叫我了，先这样. Not if it wants something else: 算了，约李娜开会.
bool givesUp(const Reading &reading, const Outcome &fresh);

/// True if @p reading, read as @p fresh, ends a question about something that has not begun:
/// 他没空，那就不开了 cancels what was planned. While one is asked whether to leave, it may be a yes.
bool dropsPlan(const Reading &reading, const Outcome &fresh);

} // namespace understanding
