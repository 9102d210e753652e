// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLatin1String>

/// The keys of requests and answers.
namespace JsonKey {
// {"members":[{"name":"李娜","userId":""}],"startTime":1700000000000}
const QLatin1String Members("members");
const QLatin1String Name("name");
const QLatin1String UserId("userId");
const QLatin1String StartTime("startTime");
const QLatin1String EndTime("endTime");
const QLatin1String Duration("duration");
const QLatin1String ParticipantLimit("participantLimit");
const QLatin1String ConferenceId("conferenceId");
const QLatin1String Password("password");

// {"askedBy":"user"}
const QLatin1String AskedBy("askedBy");
const QLatin1String AskedByUser("user");

// {"ret":"Return","users":[{"name":"张伟","status":"Duplicate","duplicate_list":[{"name":"…","userId":"…","account":"…"}]}]}
const QLatin1String Ret("ret");
const QLatin1String List("list");
const QLatin1String Users("users");
const QLatin1String NotJoinList("not_join_list");
const QLatin1String CanInviteNum("can_invite_num");
const QLatin1String Status("status");
const QLatin1String RemarkName("remarkName");
const QLatin1String Account("account");
const QLatin1String DuplicateList("duplicate_list");
const QLatin1String ConfId("confId");
const QLatin1String ConferenceDialNumber("conferenceDialNumber");
const QLatin1String Title("title");
const QLatin1String IsPayingUser("isPayingUser");
const QLatin1String Participants("participants");
} // namespace JsonKey
