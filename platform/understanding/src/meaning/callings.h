// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

// Finds whom a sentence calls without a name, and tells orders about others from orders about the speaker.

namespace understanding {

/// In digits. Fewer are no account, but the rest of something else: 小李2.
constexpr int ShortestAccount = 3;

/// 和兄弟开会, 叫上管家, 和那谁开会: a form of address where a name is expected.
bool callsByAddressOnly(const Reading &reading);
/// 和200002开会, 把200002拉进会议: accounts are numbers, too.
bool callsNumber(const Reading &reading);
/// 把200002拉进会议, 拉他进会议200002: pulls in somebody else.
bool pullsOther(const Reading &reading);
/// 把我拉到会议200002: pulls in the speaker.
bool pullsSpeaker(const Reading &reading);

} // namespace understanding
