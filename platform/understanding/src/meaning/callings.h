// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

// Whom a sentence calls without a name: what tells an order about somebody else from one about the speaker.

namespace understanding {

/// 和兄弟开会, 叫上管家, 和那谁开会: a form of address where a name is expected.
bool callsByAddressOnly(const Reading &reading);
/// 和200002开会, 把200002拉进会议: accounts are numbers, too.
bool callsNumber(const Reading &reading);
/// 把200002拉进会议, 拉他进会议200002: somebody else is to come in.
bool pullsOther(const Reading &reading);
/// 把我拉到会议200002: the speaker is.
bool pullsSpeaker(const Reading &reading);

} // namespace understanding
