// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// What ContactAbility::request() answers. Everything from -9999 to -1 says that the call itself failed and
/// that nothing is known about the action but, for the first three, that it was not performed.
namespace AbilityCode {
constexpr int Success = 0;
constexpr int NoBus = -2001;           ///< there is no session bus to be reached
constexpr int NoService = -2002;       ///< nobody has the application's name, and it could not be started
constexpr int Refused = -2003;         ///< the application or the bus answered with an error
constexpr int Died = -2004;            ///< the application, or the bus, went away during the call
constexpr int MalformedAnswer = -2005; ///< the answer is not one text
constexpr int TimedOut = -16020; ///< no answer in time; the application does not perform the action any more
} // namespace AbilityCode
