// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

/// The bounds of a conference's participant limit.
namespace ParticipantLimits {

constexpr int Least = 2;

/// The conference's own limit; a paying account's is fixed.
inline int most(const ContactDetailMsg &conference)
{
    constexpr int ofPayingUser = 100;
    return conference.isPayingUser ? ofPayingUser : conference.participantLimit;
}

} // namespace ParticipantLimits
