// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/conferencequeries.h"

#include "actions/actioncontext.h"
#include "core/outcome.h"

#include "core/conferencerules.h"

#include <algorithm>

QVector<Conference> overlappingConferences(const ActionContext &context, qint64 startMsecs, qint64 endMsecs,
                                           qint64 except)
{
    QVector<Conference> conferences =
        context.conferences.ofUser(context.user.userId, startMsecs, endMsecs, ConferenceRules::ListLimit);
    const auto isNoMatter = [&context, except](const Conference &conference) {
        return conference.id == except ||
               context.conferences.attendance(conference.id, context.user.userId) == Attendance::Left;
    };
    conferences.erase(std::remove_if(conferences.begin(), conferences.end(), isNoMatter), conferences.end());
    return conferences;
}

QVector<Conference> runningConferences(const ActionContext &context)
{
    return context.conferences.ofUser(context.user.userId, context.nowMsecs, context.nowMsecs + 1,
                                      ConferenceRules::ListLimit);
}

std::optional<Conference> currentConference(const ActionContext &context)
{
    return context.conferences.joinedBy(context.user.userId, context.nowMsecs);
}

bool isInAnyConference(const ActionContext &context)
{
    return context.session.isEngagedElsewhere() || currentConference(context).has_value();
}

std::optional<Conference> hostedConference(const ActionContext &context, const QString &confId)
{
    std::optional<Conference> conference = context.conferences.byConfId(confId, context.user.userId);
    if (conference && conference->hostId != context.user.userId) {
        return std::nullopt;
    }
    return conference;
}

QLatin1String takeSeat(const ActionContext &context, const Conference &conference)
{
    const Attendance attendance =
        context.conferences.attendance(conference.id, context.user.userId).value_or(Attendance::Left);
    if (attendance == Attendance::Left &&
        context.conferences.takenSeats(conference.id) >= conference.participantLimit) {
        return Outcome::ParticipantsFull;
    }
    context.conferences.setAttendance(conference.id, context.user.userId, Attendance::Joined);
    return Outcome::Ok;
}
