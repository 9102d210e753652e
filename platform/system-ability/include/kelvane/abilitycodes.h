// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Results of ContactAbility::request(). From -9999 to -1 the call itself failed and the outcome of the
/// action is unknown, except that the first three rule out that it was performed.
namespace AbilityCode {
constexpr int Success = 0;
constexpr int NoBus = -2001;           ///< no session bus can be reached
constexpr int NoService = -2002;       ///< nobody has the application's name, and it could not be started
constexpr int Refused = -2003;         ///< the application or the bus answered with an error
constexpr int Died = -2004;            ///< the application, or the bus, went away during the call
constexpr int MalformedAnswer = -2005; ///< the answer is not one text
constexpr int TimedOut = -16020;       ///< no answer in time; what was not performed by then never will be
} // namespace AbilityCode
