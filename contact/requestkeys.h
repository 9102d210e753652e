// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QLatin1String>

/// The keys of request parameters, for example {"members":[{"name":"李雷","userId":""}]}.
namespace RequestKey {
constexpr QLatin1String ConferenceId("conferenceId");
constexpr QLatin1String EndTime("endTime"); ///< milliseconds since the epoch
constexpr QLatin1String Members("members");
constexpr QLatin1String Name("name");
constexpr QLatin1String Password("password");
constexpr QLatin1String StartTime("startTime"); ///< milliseconds since the epoch
constexpr QLatin1String UserId("userId");
} // namespace RequestKey
