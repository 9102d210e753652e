// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/conferencequeries.h"
#include "actions/requestparameters.h"

#include "core/outcome.h"

QJsonObject isConferenceHost(const ActionContext &context, const RequestParameters &)
{
    const std::optional<Conference> conference = currentConference(context);
    if (!conference) {
        return answerWord(context.session.isEngagedElsewhere() ? Outcome::False : Outcome::NoConference);
    }
    return answerWord(conference->hostId == context.user.userId ? Outcome::True : Outcome::False);
}
