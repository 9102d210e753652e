// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/conferencequeries.h"
#include "actions/requestparameters.h"

#include "core/jsonkeys.h"
#include "core/outcome.h"

namespace {

/// Numbers are spoken in groups and may come with separators.
QString dialNumber(const QString &said)
{
    QString number;
    for (const QChar c : said) {
        if (!c.isSpace() && c != QLatin1Char('-')) {
            number.append(c);
        }
    }
    return number;
}

} // namespace

QJsonObject joinConference(const ActionContext &context, const RequestParameters &parameters)
{
    const QString number = dialNumber(parameters.text(JsonKey::ConferenceId));
    const QString passcode = parameters.text(JsonKey::Password);
    const std::optional<Conference> conference =
        context.conferences.byDialNumber(number, context.user.userId);
    if (!conference || conference->stateAt(context.nowMsecs) == ConferenceState::Ended) {
        return answerWord(Outcome::NotFound);
    }
    if (conference->stateAt(context.nowMsecs) == ConferenceState::NotStarted) {
        return answerWord(Outcome::ConferenceNotStarted);
    }

    const std::optional<Attendance> attendance =
        context.conferences.attendance(conference->id, context.user.userId);
    if (attendance == Attendance::Joined) {
        return answerWord(Outcome::Ok);
    }
    if (isInAnyConference(context)) {
        return answerWord(Outcome::InOtherConference);
    }
    if (!attendance && passcode != conference->passcode && !conference->passcode.isEmpty()) {
        return answerWord(Outcome::InvalidPasscode);
    }
    return answerWord(takeSeat(context, *conference));
}
