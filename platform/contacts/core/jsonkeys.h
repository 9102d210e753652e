// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QLatin1String>

/// The keys of requests and answers.
namespace JsonKey {
// {"members":[{"name":"李娜","userId":""}],"startTime":1700000000000}
constexpr QLatin1String Members("members");
constexpr QLatin1String Name("name");
constexpr QLatin1String UserId("userId");
constexpr QLatin1String StartTime("startTime");
constexpr QLatin1String EndTime("endTime");
constexpr QLatin1String Duration("duration");
constexpr QLatin1String ParticipantLimit("participantLimit");
constexpr QLatin1String ConferenceId("conferenceId");
constexpr QLatin1String Password("password");

// {"ret":"Return","users":[{"name":"张伟","status":"Duplicate","duplicate_list":[{"name":"…","userId":"…","account":"…"}]}]}
constexpr QLatin1String Ret("ret");
constexpr QLatin1String List("list");
constexpr QLatin1String Users("users");
constexpr QLatin1String NotJoinList("not_join_list");
constexpr QLatin1String CanInviteNum("can_invite_num");
constexpr QLatin1String Status("status");
constexpr QLatin1String RemarkName("remarkName");
constexpr QLatin1String Account("account");
constexpr QLatin1String DuplicateList("duplicate_list");
constexpr QLatin1String ConfId("confId");
constexpr QLatin1String ConferenceDialNumber("conferenceDialNumber");
constexpr QLatin1String Title("title");
constexpr QLatin1String IsPayingUser("isPayingUser");
constexpr QLatin1String Participants("participants");
} // namespace JsonKey
