// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "wire/latin1literal.h"

/// The keys of request parameters, for example {"members":[{"name":"李雷","userId":""}]}.
namespace RequestKey {
constexpr QLatin1String ConferenceId = "conferenceId"_latin1;
constexpr QLatin1String Duration = "duration"_latin1; ///< milliseconds
constexpr QLatin1String EndTime = "endTime"_latin1;   ///< milliseconds since the epoch
constexpr QLatin1String Members = "members"_latin1;
constexpr QLatin1String Name = "name"_latin1;
constexpr QLatin1String ParticipantLimit = "participantLimit"_latin1;
constexpr QLatin1String Password = "password"_latin1;
constexpr QLatin1String StartTime = "startTime"_latin1; ///< milliseconds since the epoch
constexpr QLatin1String UserId = "userId"_latin1;
} // namespace RequestKey
