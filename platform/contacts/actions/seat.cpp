// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "seat.h"

#include "actioncontext.h"

#include "../core/outcome.h"

QLatin1String takeSeat(const ActionContext &context, const Conference &conference)
{
    const Attendance attendance =
        context.conferences.attendance(conference.id, context.user.userId).value_or(Attendance::Left);
    if (attendance == Attendance::Left &&
        context.conferences.takenSeats(conference.id) >= conference.participantLimit)
        return Outcome::ParticipantsFull;
    context.conferences.setAttendance(conference.id, context.user.userId, Attendance::Joined);
    return Outcome::Ok;
}
