// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "logcapture.h"
#include "notificationserver.h"
#include "sampleworld.h"

#include "reminders/reminders.h"

#include <QObject>

#include <memory>

inline const QString User = QStringLiteral("100001");
inline const QString Friend = QStringLiteral("100003");

/**
 * Base class of tests of notifications on a private bus. Each test function gets the sample, a server that
 * shows everything and has shown nothing yet, and a clock that the test moves, so that nothing waits for
 * minutes.
 */
class RemindersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// Adds a conference of the user and the friend, neither of whom has joined it.
    void addConference(const char *number, const char *title, qint64 inMsecs, qint64 lastsMsecs = HourMsecs,
                       const QString &host = User);
    /// Has the friend invite the user to a conference of one hour.
    void invite(const char *number, const char *title, qint64 inMsecs);
    void restart();
    /// Makes the application look and waits for the server's answers.
    void settle();
    /// Moves the clock, then settles.
    void pass(qint64 msecs);
    QString lastBody() const;

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<SampleWorld> m_world;
    std::unique_ptr<NotificationServer> m_server;
    std::unique_ptr<Reminders> m_reminders;
};
