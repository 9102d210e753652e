// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminders/reminderplan.h"

#include "core/conference.h"

namespace {

std::optional<ReminderKind> kindAt(const AwaitedConference &conference, qint64 leadMsecs, qint64 nowMsecs)
{
    if (conference.endMsecs <= nowMsecs || conference.startMsecs - leadMsecs > nowMsecs) {
        return std::nullopt;
    }
    return conference.startMsecs > nowMsecs ? ReminderKind::Soon : ReminderKind::Start;
}

bool isShown(const AwaitedConference &conference, ReminderKind kind)
{
    return kind == ReminderKind::Soon ? conference.isSoonShown : conference.isStartShown;
}

} // namespace

ReminderPlan planReminders(const QVector<AwaitedConference> &awaited,
                           const QVector<AwaitedConference> &invitations, int leadMinutes, qint64 nowMsecs)
{
    const qint64 leadMsecs = leadMinutes * MinuteMsecs;
    ReminderPlan plan;
    const auto lookAt = [&plan, nowMsecs](qint64 msecs) {
        if (msecs > nowMsecs) {
            plan.nextMsecs = qMin(plan.nextMsecs.value_or(msecs), msecs);
        }
    };
    for (const AwaitedConference &conference : invitations) {
        if (conference.endMsecs > nowMsecs) {
            plan.due.append(
                {Reminder::Occasion::Invitation, conference, kindAt(conference, leadMsecs, nowMsecs)});
        }
    }
    for (const AwaitedConference &conference : awaited) {
        const std::optional<ReminderKind> kind = kindAt(conference, leadMsecs, nowMsecs);
        if (kind && !conference.isNewInvitation && !isShown(conference, *kind)) {
            plan.due.append(
                {*kind == ReminderKind::Soon ? Reminder::Occasion::Soon : Reminder::Occasion::Start,
                 conference, kind});
        }
        lookAt(conference.startMsecs - leadMsecs);
        lookAt(conference.startMsecs);
        lookAt(conference.endMsecs); // what is still shown then is withdrawn
    }
    return plan;
}
