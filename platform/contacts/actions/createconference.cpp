// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/conferencequeries.h"
#include "actions/conferencetexts.h"
#include "actions/membermatch.h"
#include "actions/requestparameters.h"

#include "core/conferencerules.h"
#include "core/jsonkeys.h"
#include "core/outcome.h"

namespace {

bool isTooFrequent(const ActionContext &context)
{
    return context.conferences.creationsBetween(context.user.userId, context.nowMsecs - MinuteMsecs,
                                                context.nowMsecs) >= context.session.creationsPerMinute();
}

} // namespace

QJsonObject createConference(const ActionContext &context, const RequestParameters &parameters)
{
    const qint64 startMsecs = parameters.number(JsonKey::StartTime).value_or(0);
    const QVector<RequestedMember> members = parameters.members();
    const QString title =
        requestedTitle(parameters).value_or(context.user.name + QStringLiteral("的视频会议"));
    const QString passcode = requestedPasscode(parameters).value_or(QString());
    const bool scheduled = startMsecs > 0;
    if (scheduled && startMsecs + ConferenceRules::LateStartMsecs < context.nowMsecs) {
        throw InvalidParameters("the start is past");
    }
    if (isTooFrequent(context)) {
        return answerWord(Outcome::TooFrequent);
    }

    const ConferenceRules rules = ConferenceRules::forKind(context.user.kind);
    if (scheduled) {
        const QVector<Conference> overlapping =
            overlappingConferences(context, startMsecs, startMsecs + rules.defaultDurationMsecs);
        if (!overlapping.isEmpty()) {
            return answerConferences(Outcome::TimeOverlap, overlapping, context.nowMsecs);
        }
    } else if (isInAnyConference(context)) {
        return answerWord(Outcome::InOtherConference);
    }

    const MemberMatches matches(context.people, context.user.userId, members);
    const QVector<Person> found = matches.found();
    if (matches.hasDuplicates() || (members.size() == 1 && found.isEmpty())) {
        return answerUsers(matches);
    }

    Conference conference;
    conference.title = title;
    conference.passcode = passcode;
    conference.hostId = context.user.userId;
    conference.startMsecs = scheduled ? startMsecs : context.nowMsecs;
    conference.durationMsecs = rules.defaultDurationMsecs;
    conference.participantLimit = rules.defaultParticipantLimit;
    conference = context.conferences.add(conference);
    context.conferences.noteCreation(context.user.userId, context.nowMsecs);
    context.conferences.setAttendance(conference.id, context.user.userId,
                                      scheduled ? Attendance::Invited : Attendance::Joined);
    // One seat is the host's.
    const int fitting = qMin(found.size(), conference.participantLimit - 1);
    const QVector<Person> seated = found.mid(0, fitting);
    for (const Person &person : seated) {
        context.conferences.setAttendance(conference.id, person.userId, Attendance::Invited);
    }

    const QVector<Conference> created{*context.conferences.byId(conference.id, context.user.userId)};
    if (fitting < found.size()) {
        QJsonObject answer = answerConferences(Outcome::ExceedMembersLimit, created, context.nowMsecs);
        answer.insert(JsonKey::NotJoinList, matchesToJson(matches.of(found.mid(fitting))));
        answer.insert(JsonKey::CanInviteNum, 0);
        return answer;
    }
    if (matches.isEverybodyFound()) {
        return answerConferences(Outcome::Ok, created, context.nowMsecs);
    }
    QJsonObject answer = answerUsers(matches);
    answer.insert(JsonKey::List, conferencesToJson(created, context.nowMsecs));
    return answer;
}
