// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminders/remindertext.h"

#include "core/conference.h"
#include "core/displaytext.h"
#include "core/person.h"
#include "reminders/reminderplan.h"

#include <QDateTime>

namespace {

QString clockText(const QDateTime &time, const QDate &today)
{
    if (time.date() == today) {
        return time.toString(QStringLiteral("HH:mm"));
    }
    return time.toString(QStringLiteral("M月d日 HH:mm"));
}

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
        return QStringLiteral("%1 分钟后开始").arg(minutes);
    }
    if (nowMsecs - conference.startMsecs < MinuteMsecs) {
        return QStringLiteral("现在开始");
    }
    return QStringLiteral("已于 %1 开始")
        .arg(clockText(QDateTime::fromMSecsSinceEpoch(conference.startMsecs), today));
}

QString titleText(const AwaitedConference &conference)
{
    const QString title = cleanDisplayText(conference.title);
    return title.isEmpty() ? QStringLiteral("视频会议") : title;
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
        notification.summary = QStringLiteral("%1邀请您参加“%2”").arg(host, titleText(conference));
    } else {
        notification.summary =
            QStringLiteral("%1：%2").arg(titleText(conference), stateText(conference, nowMsecs, today));
    }
    QStringList lines{timesText(conference, today)};
    if (isInvitation && conference.startMsecs <= nowMsecs) {
        lines.append(QStringLiteral("正在进行"));
    }
    if (!isInvitation && !conference.isOwn) {
        lines.append(QStringLiteral("主持人：%1").arg(host));
    }
    lines.append(QStringLiteral("会议号：%1").arg(conference.dialNumber));
    notification.body = lines.join(QStringLiteral("\n"));
    notification.actions = QStringList{ReminderAction::Show, QStringLiteral("查看")};
    // An invitation for tomorrow cannot be joined yet.
    if (!isInvitation || reminder.covers) {
        notification.actions << ReminderAction::Join << QStringLiteral("加入");
    }
    if (isInvitation) {
        notification.actions << ReminderAction::Decline << QStringLiteral("谢绝");
    }
    return notification;
}

Notification notificationFor(const Person &asker)
{
    Notification notification;
    notification.summary = QStringLiteral("%1请求加您为好友").arg(cleanDisplayText(asker.shownName()));
    notification.body = QStringLiteral("账号：%1").arg(cleanDisplayText(asker.account));
    notification.actions = QStringList{ReminderAction::Show, QStringLiteral("查看")};
    return notification;
}

Notification notificationAbout(const QString &title, const QString &text)
{
    Notification notification;
    notification.summary = cleanDisplayText(title);
    notification.body = text;
    notification.actions = QStringList{ReminderAction::Show, QStringLiteral("查看")};
    return notification;
}
