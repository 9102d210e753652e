// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "joinmyconference.h"

#include "actioncontext.h"
#include "answer.h"
#include "conferencequeries.h"
#include "requestparameters.h"
#include "seat.h"

#include "../core/outcome.h"

QJsonObject joinMyConference(const ActionContext &context, const RequestParameters &)
{
    if (isInAnyConference(context))
        return answerWord(Outcome::InOtherConference);
    const QVector<Conference> running = runningConferences(context);
    if (running.isEmpty())
        return answerWord(Outcome::NotFound);
    if (running.size() > 1)
        return answerConferences(Outcome::TimeOverlap, running, context.nowMsecs);
    return answerWord(takeSeat(context, running.constFirst()));
}
