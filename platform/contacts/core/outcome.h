// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLatin1String>

/// The values of an answer's "ret".
namespace Outcome {
const QLatin1String Ok("OK");
const QLatin1String Success("Success");
const QLatin1String Return("Return"); ///< see "users" for what became of each name
const QLatin1String True("True");
const QLatin1String False("False");
const QLatin1String NotFound("Not Found");
const QLatin1String NoConference("No Conference");
const QLatin1String ConferenceNotStarted("Conference Not Start");
const QLatin1String ExceedMembersLimit("Exceed Members Limit");
const QLatin1String TimeOverlap("Time Overlap");
const QLatin1String IsYourFriend("Is Your Friend");
const QLatin1String ExceedFriendLimit("Exceed Friend Limit");
const QLatin1String IsYourself("Is Yourself");
const QLatin1String InOtherConference("In Other Conference");
const QLatin1String InvalidPasscode("Invalid Passcode");
const QLatin1String NotLoggedIn("User Not Login");
const QLatin1String TooFrequent("Conference Create Too Frequently");
const QLatin1String ParticipantsFull("Participant Out Limit");
const QLatin1String UpdateFailed("Update Failed");
const QLatin1String UnknownAction("Unknown Action");
const QLatin1String InvalidParameters("Invalid Parameters");
const QLatin1String InternalError("Internal Error");
} // namespace Outcome

/// The result for one name, an entry's "status" in "users".
namespace MemberStatus {
const QLatin1String Ok("OK");
const QLatin1String Duplicate("Duplicate");
const QLatin1String NotFound("Not Found");
} // namespace MemberStatus
