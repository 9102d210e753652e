// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminderstest.h"

#include "core/statement.h"

#include <QtTest>

/// Reminders with a server that is late, refuses or stays silent, and with a failing database.
class TestNotificationFaults : public RemindersTest
{
    Q_OBJECT

private Q_SLOTS:
    void aServerThatComesLateGetsThem();
    void aServerThatRefusesIsAskedAgain();
    void aServerThatStaysSilentIsNotAskedTwice();
    void nothingIsAskedOfTheServerWithinARequest();
    void namesAndTitlesAreNoMarkup();
    void whatCannotBeNotedIsNotRepeated();
    void whatCouldNotBeNotedIsNotedLater();
    void afterAFailureItLooksAgainSoon();
};

void TestNotificationFaults::aServerThatComesLateGetsThem()
{
    m_server.reset();
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    pass(2 * MinuteMsecs);
    m_server = std::make_unique<NotificationServer>();
    QTRY_COMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：3 分钟后开始")});
}

void TestNotificationFaults::aServerThatRefusesIsAskedAgain()
{
    m_server->mood = NotificationServer::Mood::Refuses;
    m_log->expect(QtWarningMsg, QStringLiteral("A notification was not taken: \"too many\""));
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    for (int round = 0; round < 10; ++round) {
        settle(); // looking again must not ask the server again
    }
    QCOMPARE(m_server->attempts, 1);
    QCOMPARE(m_reminders->nextLookMsecs(), m_world->nowMsecs + MinuteMsecs);
    m_server->mood = NotificationServer::Mood::Shows;
    pass(MinuteMsecs);
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：4 分钟后开始")});
}

void TestNotificationFaults::aServerThatStaysSilentIsNotAskedTwice()
{
    m_server->mood = NotificationServer::Mood::Silent;
    m_log.reset();
    const LogCapture log(LogCapture::Unexpected::Passes);
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    m_reminders->look();
    QTRY_COMPARE(m_server->attempts, 1);
    for (int round = 0; round < 10; ++round) {
        m_reminders->look();
    }
    QTRY_VERIFY_WITH_TIMEOUT(m_reminders->isSettled(), 20000);
    settle();
    restart();
    settle();
    QCOMPARE(m_server->attempts, 1);
}

void TestNotificationFaults::nothingIsAskedOfTheServerWithinARequest()
{
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    QVERIFY(!m_reminders->isSettled());
    QCOMPARE(m_server->attempts, 0);
    QTRY_COMPARE(m_server->attempts, 1);
}

void TestNotificationFaults::namesAndTitlesAreNoMarkup()
{
    m_server.reset();
    m_server = std::make_unique<NotificationServer>(
        QStringList{QStringLiteral("actions"), QStringLiteral("body"), QStringLiteral("body-markup")});
    QVERIFY(m_world->admin.AddPerson(QStringLiteral("<img src='x'>"), QStringLiteral("<b>黑</b>\u202e"),
                                     QStringLiteral("free")));
    QVERIFY(m_world->admin.AddContact(QStringLiteral("<img src='x'>"), User, QString(),
                                      QStringLiteral("requested")));
    settle();
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("<b>黑</b>请求加您为好友")});
    QVERIFY2(!lastBody().contains(QLatin1Char('<')), qPrintable(lastBody()));
    m_server.reset();
    m_server = std::make_unique<NotificationServer>(QStringList());
    addConference("1", "一<b>二", MinuteMsecs, HourMsecs);
    QTRY_COMPARE(m_server->summaries(), QStringList{QStringLiteral("一<b>二：1 分钟后开始")});
    QCOMPARE(m_server->shown.last().actions, QStringList()); // this server doesn't support actions
}

void TestNotificationFaults::whatCannotBeNotedIsNotRepeated()
{
    m_log.reset();
    const LogCapture log(LogCapture::Unexpected::Passes);
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    Statement(m_world->book.database().handle(),
              QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON shown_reminder BEGIN"
                             " SELECT RAISE(ABORT, 'no'); END"))
        .run();
    m_reminders->look();
    QTRY_COMPARE(m_server->shown.size(), 1);
    for (int round = 0; round < 20; ++round) {
        m_reminders->look();
        QTest::qWait(5);
    }
    QCOMPARE(m_server->shown.size(), 1);
}

void TestNotificationFaults::whatCouldNotBeNotedIsNotedLater()
{
    m_log.reset();
    const LogCapture log(LogCapture::Unexpected::Passes);
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    const QSqlDatabase database = m_world->book.database().handle();
    Statement(database, QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON shown_reminder BEGIN"
                                       " SELECT RAISE(ABORT, 'no'); END"))
        .run();
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    Statement(database, QStringLiteral("DROP TRIGGER refuse")).run();
    settle();
    restart();
    settle();
    QCOMPARE(m_server->shown.size(), 1);
}

void TestNotificationFaults::afterAFailureItLooksAgainSoon()
{
    m_log.reset();
    const LogCapture log(LogCapture::Unexpected::Passes);
    const QSqlDatabase database = m_world->book.database().handle();
    Statement(database, QStringLiteral("ALTER TABLE reminder_settings RENAME TO away")).run();
    m_reminders->look();
    QCOMPARE(m_reminders->nextLookMsecs(), m_world->nowMsecs + MinuteMsecs);
    Statement(database, QStringLiteral("ALTER TABLE away RENAME TO reminder_settings")).run();
    m_reminders->look();
    QVERIFY(m_reminders->nextLookMsecs() > m_world->nowMsecs + MinuteMsecs);
}

QTEST_GUILESS_MAIN(TestNotificationFaults)
#include "tst_notificationfaults.moc"
