// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/**
 * The result codes that service, analysers and handlers share. Any other code from -9999 to -1 is a failure
 * of the call itself.
 */
namespace ResultCode {
constexpr int Success = 0;
constexpr int CallFailedFirst = -9999;
constexpr int CallFailedLast = -1;
constexpr int UnsupportedIntent = -21;
constexpr int UnsupportedPhrasing = -24;
constexpr int MissingSlot = -102;
constexpr int Malformed = -16001; ///< also an unknown outcome word
constexpr int NobodyFound = -16002;
constexpr int DuplicateNames = -16003;
constexpr int SomeNotFound = -16004;
constexpr int NoConference = -16005; ///< also: not started
constexpr int MembersLimit = -16006;
constexpr int ConferenceNotFound = -16007;
constexpr int TimeOverlap = -16008;
constexpr int AlreadyFriend = -16009;
constexpr int FriendLimit = -16010;
constexpr int NotFound = -16011;
constexpr int PastTime = -16012;
constexpr int InOtherConference = -16013;
constexpr int InvalidPasscode = -16014;
constexpr int True = -16015;
constexpr int False = -16016;
constexpr int NotLoggedIn = -16017;
constexpr int Oneself = -16018;
constexpr int TooFrequent = -16019;
constexpr int TimedOut = -16020;
constexpr int ParticipantsFull = -16021;
} // namespace ResultCode
