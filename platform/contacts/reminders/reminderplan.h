// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/reminderrepository.h"

#include <QVector>

#include <optional>

/// One notification about a conference.
struct Reminder
{
    enum class Occasion {
        Invitation,
        Soon,  ///< starts within the lead time
        Start, ///< has started; also when that was a while ago, because the computer slept
    };

    Occasion occasion = Occasion::Soon;
    AwaitedConference conference;
    /// The reminder that this one makes unnecessary.
    std::optional<ReminderKind> covers;
};

/// What to show now and when to look again.
struct ReminderPlan
{
    QVector<Reminder> due;
    std::optional<qint64> nextMsecs; ///< of what is known here; nothing when nothing is left to wait for
};

/**
 * Decides what is due at @p nowMsecs, by the clock alone: whether it got there by waiting, sleeping or being
 * set makes no difference. An ended conference is never due; a running one is until its start has been shown.
 * An invitation says when the conference starts, so one notification serves both.
 */
ReminderPlan planReminders(const QVector<AwaitedConference> &awaited,
                           const QVector<AwaitedConference> &invitations, int leadMinutes, qint64 nowMsecs);
