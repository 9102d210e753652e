// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

namespace understanding {

// What leaves open whether, when or for whom something is to be done.

/// 明天三点安排个评审, 和张伟讨论方案, 约张伟明天三点: people may well meet in one room.
[[nodiscard]] bool namesNoConference(const Reading &reading);

/// 这个会可以散了吧, 可以开会了吧: asks whether one may.
[[nodiscard]] bool asksWhetherMay(const Reading &reading);

/// 有空跟张伟开个会: some day.
[[nodiscard]] bool comesSomeDay(const Reading &reading);

/// 加李娜好友，帮我约张伟开会: two things at once.
[[nodiscard]] bool alsoAddsFriend(const Reading &reading);

/// 和杜鹃的视频会议: a conference is named, and nothing is to be done with it.
[[nodiscard]] bool onlyNamesConference(const Reading &reading);

/// A座会议室，帮忙预定: a room is no conference.
[[nodiscard]] bool onlyNamesRoom(const Reading &reading);

/// 明天三点我没空了，帮我约张伟开会: the hour is not that of the conference.
[[nodiscard]] bool isBusyThen(const Reading &reading);

/// 帮我回复他，加入123456; 告诉张伟，退出会议: somebody else is to read it.
[[nodiscard]] bool passesOn(const Reading &reading);

/// 这个会就到这儿，叫上张伟: to leave, and to call somebody?
[[nodiscard]] bool alsoCalls(const Reading &reading);

/// 邀请邻居家的小龙，进咱们会议: somebody else is to come.
[[nodiscard]] bool alsoInvites(const Reading &reading);

} // namespace understanding
