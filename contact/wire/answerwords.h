// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "wire/latin1literal.h"

/**
 * @file
 * The vocabulary of the contacts application's answers.
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
constexpr QLatin1String Outcome = "ret"_latin1;
constexpr QLatin1String Conferences = "list"_latin1;
constexpr QLatin1String Users = "users"_latin1;
constexpr QLatin1String NotJoined = "not_join_list"_latin1;
constexpr QLatin1String CanInvite = "can_invite_num"_latin1;
// Of a conference.
constexpr QLatin1String ConferenceId = "confId"_latin1;
constexpr QLatin1String DialNumber = "conferenceDialNumber"_latin1;
constexpr QLatin1String Duration = "duration"_latin1;
constexpr QLatin1String StartTime = "startTime"_latin1;
constexpr QLatin1String Title = "title"_latin1;
constexpr QLatin1String ParticipantLimit = "participantLimit"_latin1;
constexpr QLatin1String Status = "status"_latin1; // also of a user
constexpr QLatin1String IsPayingUser = "isPayingUser"_latin1;
constexpr QLatin1String Participants = "participants"_latin1;
// Of a user.
constexpr QLatin1String Name = "name"_latin1;
constexpr QLatin1String RemarkName = "remarkName"_latin1;
constexpr QLatin1String UserId = "userId"_latin1;
constexpr QLatin1String Account = "account"_latin1;
constexpr QLatin1String Duplicates = "duplicate_list"_latin1;
} // namespace AnswerKey

/// The values of "ret", compared exactly. "OK", "Not Found" and "Duplicate" are also a user's "status".
namespace OutcomeWord {
constexpr QLatin1String Ok = "OK"_latin1;
constexpr QLatin1String Success = "Success"_latin1;
constexpr QLatin1String Return = "Return"_latin1;
constexpr QLatin1String Duplicate = "Duplicate"_latin1;
constexpr QLatin1String NotFound = "Not Found"_latin1;
constexpr QLatin1String NoConference = "No Conference"_latin1;
constexpr QLatin1String NotStarted = "Conference Not Start"_latin1;
constexpr QLatin1String InOtherConference = "In Other Conference"_latin1;
constexpr QLatin1String TooFrequent = "Conference Create Too Frequently"_latin1;
constexpr QLatin1String MembersLimit = "Exceed Members Limit"_latin1;
constexpr QLatin1String ParticipantsFull = "Participant Out Limit"_latin1;
constexpr QLatin1String TimeOverlap = "Time Overlap"_latin1;
constexpr QLatin1String InvalidPasscode = "Invalid Passcode"_latin1;
constexpr QLatin1String UpdateFailed = "Update Failed"_latin1;
constexpr QLatin1String AlreadyFriend = "Is Your Friend"_latin1;
constexpr QLatin1String FriendLimit = "Exceed Friend Limit"_latin1;
constexpr QLatin1String Oneself = "Is Yourself"_latin1;
constexpr QLatin1String NotLoggedIn = "User Not Login"_latin1;
constexpr QLatin1String True = "True"_latin1;
constexpr QLatin1String False = "False"_latin1;
} // namespace OutcomeWord
