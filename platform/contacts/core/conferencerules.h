// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"
#include "core/person.h"

/// What an account's conferences may be like. The reply cards offer durations up to 30 minutes to free
/// accounts, and up to four hours and 100 people to paying ones, so these are the limits.
struct ConferenceRules
{
    qint64 defaultDurationMsecs;
    qint64 maxDurationMsecs;
    int defaultParticipantLimit;
    int maxParticipantLimit;

    static constexpr ConferenceRules forKind(AccountKind kind)
    {
        return kind == AccountKind::Paying ? ConferenceRules{HourMsecs, 4 * HourMsecs, 20, 100}
                                           : ConferenceRules{30 * MinuteMsecs, 30 * MinuteMsecs, 10, 10};
    }

    static constexpr int MinParticipantLimit = 2;
    /// No conference in the database is longer, so a search for overlaps need not look further back.
    static constexpr qint64 LongestMsecs = DayMsecs;
    static constexpr int CreationsPerMinute = 10;
    static constexpr int FriendLimit = 500;
    /// Choosing among people of the same name may delay the request by this much.
    static constexpr qint64 LateStartMsecs = 10 * MinuteMsecs;
    /// The most conferences in one answer.
    static constexpr int ListLimit = 100;
    static constexpr int MaxMembers = 300;
    /// The most candidates for one name.
    static constexpr int MaxCandidates = 50;
};
