// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/conferencequeries.h"
#include "actions/requestparameters.h"

#include "core/outcome.h"

QJsonObject joinMyConference(const ActionContext &context, const RequestParameters &)
{
    if (isInAnyConference(context)) {
        return answerWord(Outcome::InOtherConference);
    }
    const QVector<Conference> running = runningConferences(context);
    if (running.isEmpty()) {
        return answerWord(Outcome::NotFound);
    }
    if (running.size() > 1) {
        return answerConferences(Outcome::TimeOverlap, running, context.nowMsecs);
    }
    return answerWord(takeSeat(context, running.constFirst()));
}
