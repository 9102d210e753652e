// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/conferencequeries.h"
#include "actions/conferencetexts.h"
#include "actions/requestparameters.h"

#include "core/conferencerules.h"
#include "core/jsonkeys.h"
#include "core/outcome.h"

namespace {

struct Change
{
    std::optional<qint64> startMsecs;
    std::optional<qint64> durationMsecs;
    std::optional<qint64> participantLimit;
    std::optional<QString> title;
    std::optional<QString> passcode;
};

/// An unchanged value is always valid, however it came about.
bool isTimeAllowed(const ActionContext &context, const Conference &conference, const Change &change)
{
    const qint64 start = change.startMsecs.value_or(conference.startMsecs);
    const qint64 duration = change.durationMsecs.value_or(conference.durationMsecs);
    if (conference.stateAt(context.nowMsecs) == ConferenceState::Ended ||
        start + duration <= context.nowMsecs) {
        return false;
    }
    if (start != conference.startMsecs &&
        (conference.stateAt(context.nowMsecs) == ConferenceState::Running || start < context.nowMsecs)) {
        return false;
    }
    const bool longer = duration > conference.durationMsecs;
    if (longer && duration > ConferenceRules::forKind(context.user.kind).maxDurationMsecs) {
        return false;
    }
    if (duration < MinuteMsecs) {
        return false;
    }
    const bool moved = start != conference.startMsecs || longer;
    return !moved || overlappingConferences(context, start, start + duration, conference.id).isEmpty();
}

bool isLimitAllowed(const ActionContext &context, const Conference &conference, const Change &change)
{
    if (!change.participantLimit || *change.participantLimit == conference.participantLimit) {
        return true;
    }
    const qint64 limit = *change.participantLimit;
    const int most =
        qMax(conference.participantLimit, ConferenceRules::forKind(context.user.kind).maxParticipantLimit);
    return limit >=
               qMax(ConferenceRules::MinParticipantLimit, context.conferences.takenSeats(conference.id)) &&
           limit <= most;
}

} // namespace

QJsonObject updateConference(const ActionContext &context, const RequestParameters &parameters)
{
    const std::optional<Conference> conference =
        hostedConference(context, parameters.text(JsonKey::ConferenceId));
    Change change;
    change.startMsecs = parameters.number(JsonKey::StartTime);
    change.durationMsecs = parameters.number(JsonKey::Duration);
    change.participantLimit = parameters.number(JsonKey::ParticipantLimit);
    change.title = requestedTitle(parameters);
    change.passcode = requestedPasscode(parameters);
    if (!conference) {
        return answerWord(Outcome::NotFound);
    }
    if (!isTimeAllowed(context, *conference, change) || !isLimitAllowed(context, *conference, change)) {
        return answerWord(Outcome::UpdateFailed);
    }
    context.conferences.setTimes(conference->id, change.startMsecs.value_or(conference->startMsecs),
                                 change.durationMsecs.value_or(conference->durationMsecs));
    if (change.participantLimit) {
        context.conferences.setParticipantLimit(conference->id, static_cast<int>(*change.participantLimit));
    }
    if (change.title) {
        context.conferences.setTitle(conference->id, *change.title);
    }
    if (change.passcode) {
        context.conferences.setPasscode(conference->id, *change.passcode);
    }
    return answerConferences(Outcome::Ok, {*context.conferences.byId(conference->id, context.user.userId)},
                             context.nowMsecs);
}
