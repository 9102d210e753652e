// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencequeries.h"

#include "actioncontext.h"

#include "../core/conferencerules.h"

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
    if (conference && conference->hostId != context.user.userId)
        return std::nullopt;
    return conference;
}
