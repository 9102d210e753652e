// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/conferencequeries.h"
#include "actions/requestparameters.h"

#include "core/outcome.h"

QJsonObject exitConference(const ActionContext &context, const RequestParameters &)
{
    const std::optional<Conference> conference = currentConference(context);
    if (!conference) {
        return answerWord(Outcome::NoConference);
    }
    if (conference->hostId == context.user.userId) {
        context.conferences.setTimes(conference->id, conference->startMsecs,
                                     context.nowMsecs - conference->startMsecs);
    } else {
        context.conferences.setAttendance(conference->id, context.user.userId, Attendance::Left);
    }
    return answerWord(Outcome::Ok);
}
