// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/conferencequeries.h"
#include "actions/requestparameters.h"

#include "core/jsonkeys.h"
#include "core/outcome.h"

QJsonObject deleteConference(const ActionContext &context, const RequestParameters &parameters)
{
    const std::optional<Conference> conference =
        hostedConference(context, parameters.text(JsonKey::ConferenceId));
    if (!conference) {
        return answerWord(Outcome::NotFound);
    }
    if (conference->stateAt(context.nowMsecs) == ConferenceState::Ended) {
        return answerWord(Outcome::NoConference);
    }
    context.conferences.remove(conference->id);
    return answerWord(Outcome::Ok);
}
