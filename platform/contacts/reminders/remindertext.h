// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <notification.h>

struct Person;
struct Reminder;

/// The names of the buttons, as the notification server reports them.
namespace ReminderAction {
const QLatin1String Show("default"); ///< a click on the notification itself
const QLatin1String Join("join");
const QLatin1String Decline("decline");
} // namespace ReminderAction

/// The text and buttons of a notification. Times are in the current time zone.
Notification notificationFor(const Reminder &reminder, qint64 nowMsecs);
Notification notificationFor(const Person &asker);
/// The notification after a click on 加入 that did not lead into the conference; @p text says why.
Notification notificationAbout(const QString &title, const QString &text);
