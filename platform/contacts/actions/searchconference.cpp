// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/requestparameters.h"

#include "core/conferencerules.h"
#include "core/jsonkeys.h"
#include "core/outcome.h"

#include <limits>

QJsonObject searchConference(const ActionContext &context, const RequestParameters &parameters)
{
    const qint64 from = parameters.number(JsonKey::StartTime).value_or(context.nowMsecs);
    const qint64 to = parameters.number(JsonKey::EndTime).value_or(std::numeric_limits<qint64>::max());
    const QVector<Conference> conferences =
        context.conferences.ofUser(context.user.userId, from, to, ConferenceRules::ListLimit);
    if (conferences.isEmpty()) {
        return answerWord(Outcome::NotFound);
    }
    return answerConferences(Outcome::Ok, conferences, context.nowMsecs);
}
