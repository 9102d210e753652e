// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminderstest.h"

#include <QtTest>

#include <ctime>

void RemindersTest::init()
{
    m_log = std::make_unique<LogCapture>();
    m_world = std::make_unique<SampleWorld>();
    // It is already running, so its reminder would come at once.
    QVERIFY(m_world->admin.SetConferenceState(QStringLiteral("880100001"), QStringLiteral("ended")));
    m_server = std::make_unique<NotificationServer>();
    restart();
    settle();
    QCOMPARE(m_server->summaries(), QStringList());
}

void RemindersTest::cleanup()
{
    m_reminders.reset();
    m_server.reset();
    m_world.reset();
    m_log.reset();
    qputenv("TZ", "Asia/Shanghai");
    tzset();
}

void RemindersTest::addConference(const char *number, const char *title, qint64 inMsecs, qint64 lastsMsecs,
                                  const QString &host)
{
    const QString id =
        m_world->admin.AddConference(QString::fromLatin1(number), QString::fromUtf8(title), host,
                                     m_world->nowMsecs + inMsecs, lastsMsecs, 10, QString(), {User, Friend});
    QVERIFY(!id.isEmpty());
    // Drop the news of the invitation: tst_invitations covers it.
    QVERIFY(m_world->book.change([this] {
        m_world->book.reminders().forgetNews();
        return true;
    }));
}

void RemindersTest::restart()
{
    m_reminders = std::make_unique<Reminders>(m_world->book, QDBusConnection::sessionBus());
}

void RemindersTest::settle()
{
    m_reminders->look();
    QVERIFY(QTest::qWaitFor([this] { return m_reminders->isSettled(); }));
}

void RemindersTest::pass(qint64 msecs)
{
    m_world->nowMsecs += msecs;
    settle();
}

QString RemindersTest::lastBody() const
{
    return m_server->last().body;
}

void RemindersTest::invite(const char *number, const char *title, qint64 inMsecs)
{
    m_world->admin.AddConference(QString::fromLatin1(number), QString::fromUtf8(title), Friend,
                                 m_world->nowMsecs + inMsecs, HourMsecs, 10, QString(), {User});
}
