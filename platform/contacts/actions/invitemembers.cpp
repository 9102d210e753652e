// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/conferencequeries.h"
#include "actions/membermatch.h"
#include "actions/requestparameters.h"

#include "core/jsonkeys.h"
#include "core/outcome.h"

namespace {

QVector<Person> withoutSeat(const ActionContext &context, const Conference &conference,
                            const QVector<Person> &people)
{
    QVector<Person> newcomers;
    for (const Person &person : people) {
        if (context.conferences.attendance(conference.id, person.userId).value_or(Attendance::Left) ==
            Attendance::Left) {
            newcomers.append(person);
        }
    }
    return newcomers;
}

} // namespace

QJsonObject inviteMembers(const ActionContext &context, const RequestParameters &parameters)
{
    const QVector<RequestedMember> members = parameters.members();
    const std::optional<Conference> conference = currentConference(context);
    if (!conference) {
        return answerWord(context.session.isEngagedElsewhere() ? Outcome::InOtherConference
                                                               : Outcome::ConferenceNotStarted);
    }

    const MemberMatches matches(context.people, context.user.userId, members);
    if (matches.hasDuplicates()) {
        return answerUsers(matches);
    }
    const QVector<Person> found = matches.found();
    if (members.size() == 1 && found.isEmpty()) {
        return answerWord(Outcome::NotFound);
    }

    const QVector<Person> newcomers = withoutSeat(context, *conference, found);
    const int free = conference->participantLimit - context.conferences.takenSeats(conference->id);
    if (newcomers.size() > free) {
        QJsonObject answer = answerWord(Outcome::ExceedMembersLimit);
        answer.insert(JsonKey::NotJoinList, matchesToJson(matches.of(newcomers)));
        answer.insert(JsonKey::CanInviteNum, free);
        return answer;
    }
    for (const Person &person : newcomers) {
        context.conferences.setAttendance(conference->id, person.userId, Attendance::Invited);
    }
    return matches.isEverybodyFound() ? answerWord(Outcome::Ok) : answerUsers(matches);
}
