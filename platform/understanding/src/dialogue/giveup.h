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

/// True if @p reading says that nothing is to be held: 今天不开了, 会议不开了, but not 不开了，退出会议. It
/// never means the conference that one is in.
bool callsOff(const Reading &reading);

/// True if @p reading, read as @p fresh, ends a question because what was planned is not wanted any more:
/// 他没空，那就不开了; 不约她了.
bool dropsPlan(const Reading &reading, const Outcome &fresh);

} // namespace understanding
