// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QLatin1String>

/// The words that an answer's "ret" says.
namespace Outcome {
constexpr QLatin1String Ok("OK");
constexpr QLatin1String Success("Success");
constexpr QLatin1String Return("Return"); ///< see "users" for what became of each name
constexpr QLatin1String True("True");
constexpr QLatin1String False("False");
constexpr QLatin1String NotFound("Not Found");
constexpr QLatin1String NoConference("No Conference");
constexpr QLatin1String ConferenceNotStarted("Conference Not Start");
constexpr QLatin1String ExceedMembersLimit("Exceed Members Limit");
constexpr QLatin1String TimeOverlap("Time Overlap");
constexpr QLatin1String IsYourFriend("Is Your Friend");
constexpr QLatin1String ExceedFriendLimit("Exceed Friend Limit");
constexpr QLatin1String IsYourself("Is Yourself");
constexpr QLatin1String InOtherConference("In Other Conference");
constexpr QLatin1String InvalidPasscode("Invalid Passcode");
constexpr QLatin1String NotLoggedIn("User Not Login");
constexpr QLatin1String TooFrequent("Conference Create Too Frequently");
constexpr QLatin1String ParticipantsFull("Participant Out Limit");
constexpr QLatin1String UpdateFailed("Update Failed");
constexpr QLatin1String UnknownAction("Unknown Action");
constexpr QLatin1String InvalidParameters("Invalid Parameters");
constexpr QLatin1String InternalError("Internal Error");
} // namespace Outcome

/// What became of one name, an entry's "status" in "users".
namespace MemberStatus {
constexpr QLatin1String Ok("OK");
constexpr QLatin1String Duplicate("Duplicate");
constexpr QLatin1String NotFound("Not Found");
} // namespace MemberStatus
