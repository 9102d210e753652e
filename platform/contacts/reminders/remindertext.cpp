// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminders/remindertext.h"

#include "core/clocktext.h"
#include "core/conference.h"
#include "core/displaytext.h"
#include "core/person.h"
#include "reminders/reminderplan.h"

#include <QCoreApplication>
#include <QDateTime>

namespace {

/// "10:00–11:00", with the day where it is not today.
QString timesText(const AwaitedConference &conference, const QDate &today)
{
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(conference.startMsecs);
    const QDateTime end = QDateTime::fromMSecsSinceEpoch(conference.endMsecs);
    return QStringLiteral("%1–%2").arg(clockText(start, today),
                                       clockText(end, end.date() == start.date() ? end.date() : today));
}

QString stateText(const AwaitedConference &conference, qint64 nowMsecs, const QDate &today)
{
    if (conference.startMsecs > nowMsecs) {
        const qint64 minutes = (conference.startMsecs - nowMsecs + MinuteMsecs - 1) / MinuteMsecs;
        return QCoreApplication::translate("ReminderText", "starts in %1 min").arg(minutes);
    }
    if (nowMsecs - conference.startMsecs < MinuteMsecs) {
        return QCoreApplication::translate("ReminderText", "starts now");
    }
    return QCoreApplication::translate("ReminderText", "started at %1")
        .arg(clockText(QDateTime::fromMSecsSinceEpoch(conference.startMsecs), today));
}

QString titleText(const AwaitedConference &conference)
{
    const QString title = cleanDisplayText(conference.title);
    return title.isEmpty() ? QCoreApplication::translate("ReminderText", "Video conference") : title;
}

} // namespace

Notification notificationFor(const Reminder &reminder, qint64 nowMsecs)
{
    const QDate today = QDateTime::fromMSecsSinceEpoch(nowMsecs).date();
    const AwaitedConference &conference = reminder.conference;
    const bool isInvitation = reminder.occasion == Reminder::Occasion::Invitation;
    const QString host = cleanDisplayText(conference.hostName);
    Notification notification;
    if (isInvitation) {
        notification.summary = QCoreApplication::translate("ReminderText", "%1 invites you to “%2”")
                                   .arg(host, titleText(conference));
    } else {
        notification.summary = QCoreApplication::translate("ReminderText", "%1: %2")
                                   .arg(titleText(conference), stateText(conference, nowMsecs, today));
    }
    QStringList lines{timesText(conference, today)};
    if (isInvitation && conference.startMsecs <= nowMsecs) {
        lines.append(QCoreApplication::translate("ReminderText", "It is running."));
    }
    if (!isInvitation && !conference.isOwn) {
        lines.append(QCoreApplication::translate("ReminderText", "Host: %1").arg(host));
    }
    lines.append(QCoreApplication::translate("ReminderText", "Number: %1").arg(conference.dialNumber));
    notification.body = lines.join(QStringLiteral("\n"));
    notification.actions =
        QStringList{ReminderAction::Show, QCoreApplication::translate("ReminderText", "Show")};
    // An invitation for tomorrow cannot be joined yet.
    if (!isInvitation || reminder.covers) {
        notification.actions << ReminderAction::Join << QCoreApplication::translate("ReminderText", "Join");
    }
    if (isInvitation) {
        notification.actions << ReminderAction::Decline
                             << QCoreApplication::translate("ReminderText", "Decline");
    }
    return notification;
}

Notification notificationFor(const Person &asker)
{
    Notification notification;
    notification.summary = QCoreApplication::translate("ReminderText", "%1 asks to be your friend")
                               .arg(cleanDisplayText(asker.shownName()));
    notification.body =
        QCoreApplication::translate("ReminderText", "Account: %1").arg(cleanDisplayText(asker.account));
    notification.actions =
        QStringList{ReminderAction::Show, QCoreApplication::translate("ReminderText", "Show")};
    return notification;
}

Notification notificationAbout(const QString &title, const QString &text)
{
    Notification notification;
    notification.summary = cleanDisplayText(title);
    notification.body = text;
    notification.actions =
        QStringList{ReminderAction::Show, QCoreApplication::translate("ReminderText", "Show")};
    return notification;
}
