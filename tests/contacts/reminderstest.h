// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "logcapture.h"
#include "notificationserver.h"
#include "sampleworld.h"

#include "reminders/reminders.h"

#include <QObject>

#include <memory>

constexpr qint64 HourMsecs = 60 * MinuteMsecs;
inline const QString User = QStringLiteral("100001");
inline const QString Friend = QStringLiteral("100003");

/**
 * Notifications over a private bus. Derive a test class from it: each test function gets the sample, a server
 * that shows everything and has shown nothing yet, and a clock of the application's, so that nothing waits
 * for minutes.
 */
class RemindersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// A conference of the user's with the friend, neither of them in it.
    void addConference(const char *number, const char *title, qint64 inMsecs, qint64 lastsMsecs = HourMsecs,
                       const QString &host = User);
    /// The friend invites the user to a conference of an hour.
    void invite(const char *number, const char *title, qint64 inMsecs);
    void restart();
    /// Lets the application look, and the server answer.
    void settle();
    /// Moves the clock, then settles.
    void pass(qint64 msecs);
    QString lastBody() const;

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<SampleWorld> m_world;
    std::unique_ptr<NotificationServer> m_server;
    std::unique_ptr<Reminders> m_reminders;
};
