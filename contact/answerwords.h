// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QLatin1String>

/**
 * @file
 * The words of the contacts application's answers.
 *
 * @code{.json}
 * {"ret": "Return",
 *  "list": [{"confId": "7", "conferenceDialNumber": "801", "title": "周会", "startTime": 1772850000000,
 *            "duration": 3600000, "participantLimit": 50, "status": "0", "isPayingUser": true,
 *            "participants": [{"name": "李雷", "userId": "u1", "account": "lilei"}]}],
 *  "users": [{"name": "李雷", "status": "OK", "remarkName": "老李", "userId": "u1", "account": "lilei"},
 *            {"name": "王芳", "status": "Duplicate",
 *             "duplicate_list": [{"name": "王芳（财务）", "userId": "u2", "account": "wf1"},
 *                                {"name": "王芳（研发）", "userId": "u3", "account": "wf2"}]},
 *            {"name": "赵六", "status": "Not Found"}]}
 * @endcode
 * With "Exceed Members Limit" the users are in "not_join_list", beside "can_invite_num".
 */
namespace AnswerKey {
constexpr QLatin1String Outcome("ret");
constexpr QLatin1String Conferences("list");
constexpr QLatin1String Users("users");
constexpr QLatin1String NotJoined("not_join_list");
constexpr QLatin1String CanInvite("can_invite_num");
// Of a conference.
constexpr QLatin1String ConferenceId("confId");
constexpr QLatin1String DialNumber("conferenceDialNumber");
constexpr QLatin1String Duration("duration");
constexpr QLatin1String StartTime("startTime");
constexpr QLatin1String Title("title");
constexpr QLatin1String ParticipantLimit("participantLimit");
constexpr QLatin1String Status("status"); // also of a user
constexpr QLatin1String IsPayingUser("isPayingUser");
constexpr QLatin1String Participants("participants");
// Of a user.
constexpr QLatin1String Name("name");
constexpr QLatin1String RemarkName("remarkName");
constexpr QLatin1String UserId("userId");
constexpr QLatin1String Account("account");
constexpr QLatin1String Duplicates("duplicate_list");
} // namespace AnswerKey

/// What "ret" says; "OK", "Not Found" and "Duplicate" are also said of a single user. Compared exactly.
namespace OutcomeWord {
constexpr QLatin1String Ok("OK");
constexpr QLatin1String Success("Success");
constexpr QLatin1String Return("Return");
constexpr QLatin1String Duplicate("Duplicate");
constexpr QLatin1String NotFound("Not Found");
constexpr QLatin1String NoConference("No Conference");
constexpr QLatin1String NotStarted("Conference Not Start");
constexpr QLatin1String InOtherConference("In Other Conference");
constexpr QLatin1String TooFrequent("Conference Create Too Frequently");
constexpr QLatin1String MembersLimit("Exceed Members Limit");
constexpr QLatin1String ParticipantsFull("Participant Out Limit");
constexpr QLatin1String TimeOverlap("Time Overlap");
constexpr QLatin1String InvalidPasscode("Invalid Passcode");
constexpr QLatin1String UpdateFailed("Update Failed");
constexpr QLatin1String AlreadyFriend("Is Your Friend");
constexpr QLatin1String FriendLimit("Exceed Friend Limit");
constexpr QLatin1String Oneself("Is Yourself");
constexpr QLatin1String NotLoggedIn("User Not Login");
constexpr QLatin1String True("True");
constexpr QLatin1String False("False");
} // namespace OutcomeWord
