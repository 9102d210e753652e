// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminderstest.h"

#include "book/friendrequests.h"
#include "core/outcome.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QtTest>

/// Clicks on notifications, and withdrawing notifications.
class TestNotificationClicks : public RemindersTest
{
    Q_OBJECT

private Q_SLOTS:
    void joiningFromTheNotification();
    void anothersNotificationJoinsNobody();
    void joiningTooEarlySaysSo();
    void aClickOnTheNotificationShowsTheWindow();
    void aClickBeforeTheServersAnswerCounts();
    void othersNotificationsAreLeftAlone();
    void anAnsweredFriendRequestIsWithdrawn_data();
    void anAnsweredFriendRequestIsWithdrawn();
    void whatIsNoLongerTrueIsWithdrawn_data();
    void whatIsNoLongerTrueIsWithdrawn();
};

void TestNotificationClicks::joiningFromTheNotification()
{
    addConference("1", "设计讨论", MinuteMsecs, HourMsecs, Friend);
    settle();
    pass(MinuteMsecs);
    QSignalSpy wanted(m_reminders.get(), &Reminders::windowWanted);
    m_server->click(m_server->shown.last().id, QStringLiteral("join"));
    QTRY_COMPARE(wanted.count(), 1);
    const std::optional<Conference> joined =
        m_world->book.conferences().joinedBy(m_world->book.session().user()->userId, m_world->nowMsecs);
    QVERIFY(joined);
    QCOMPARE(joined->dialNumber, QStringLiteral("1"));
    QCOMPARE(m_server->shown.size(), 2);
}

void TestNotificationClicks::anothersNotificationJoinsNobody()
{
    addConference("1", "设计讨论", MinuteMsecs, HourMsecs);
    settle();
    pass(MinuteMsecs);
    m_server->click(m_server->shown.last().id, QStringLiteral("join"));
    m_server->flush();
    // The round trip ensures that the click has arrived; it is handled after the login.
    QVERIFY(!QDBusConnection::sessionBus().interface()->isServiceRegistered(QStringLiteral("no.body")));
    QVERIFY(m_world->admin.Login(Friend));
    QCoreApplication::sendPostedEvents();
    const QString userId = m_world->book.session().user()->userId;
    QVERIFY(!m_world->book.conferences().joinedBy(userId, m_world->nowMsecs));
}

void TestNotificationClicks::joiningTooEarlySaysSo()
{
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    m_server->click(m_server->shown.last().id, QStringLiteral("join"));
    QTRY_COMPARE(m_server->shown.size(), 2);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论"));
    QCOMPARE(lastBody(), QStringLiteral("会议还未开始，开始时会再次提醒您。"));
    pass(5 * MinuteMsecs);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论：现在开始"));
    // The user is in a conference elsewhere.
    m_world->admin.SetEngagedElsewhere(true);
    m_server->click(m_server->shown.last().id, QStringLiteral("join"));
    QTRY_COMPARE(lastBody(), QStringLiteral("正在其他会议中。"));
}

void TestNotificationClicks::aClickOnTheNotificationShowsTheWindow()
{
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    QSignalSpy wanted(m_reminders.get(), &Reminders::windowWanted);
    m_server->click(m_server->shown.last().id, QStringLiteral("default"));
    QTRY_COMPARE(wanted.count(), 1);
}

void TestNotificationClicks::aClickBeforeTheServersAnswerCounts()
{
    m_server->clickAtOnce = QStringLiteral("default");
    QSignalSpy wanted(m_reminders.get(), &Reminders::windowWanted);
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    QTRY_COMPARE(wanted.count(), 1);
    // What comes before another notification's answer is not lost either.
    addConference("2", "另一个", 5 * MinuteMsecs);
    settle();
    QTRY_COMPARE(wanted.count(), 2);
}

void TestNotificationClicks::othersNotificationsAreLeftAlone()
{
    addConference("1", "设计讨论", MinuteMsecs);
    settle();
    pass(MinuteMsecs);
    QSignalSpy wanted(m_reminders.get(), &Reminders::windowWanted);
    addConference("2", "另一个", MinuteMsecs);
    settle();
    const uint mine = m_server->shown.last().id;
    m_server->click(mine + 1, QStringLiteral("join"));
    m_server->click(mine + 1, QStringLiteral("default"));
    m_server->click(m_server->shown.first().id, QStringLiteral("unknown"));
    // A forged signal, not from the server.
    QDBusMessage forged = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"),
                                                     QStringLiteral("org.freedesktop.Notifications"),
                                                     QStringLiteral("ActionInvoked"));
    forged << mine << QStringLiteral("default");
    QVERIFY(QDBusConnection::sessionBus().send(forged));
    // The bus orders messages per sender only: wait for a round trip, so that the forged signal has arrived.
    QVERIFY(!QDBusConnection::sessionBus().interface()->isServiceRegistered(QStringLiteral("no.body")));
    QCoreApplication::processEvents();
    QCOMPARE(wanted.count(), 0);
    // The server's signals arrive in order, so a genuine one shows that the others were ignored.
    m_server->shown.clear();
    QVERIFY(m_world->admin.AddContact(Friend, User, QString(), QStringLiteral("requested")));
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    m_server->click(m_server->shown.last().id, QStringLiteral("default"));
    QTRY_COMPARE(wanted.count(), 1);
    QVERIFY(!m_world->book.conferences().joinedBy(m_world->book.session().user()->userId, m_world->nowMsecs));
}

void TestNotificationClicks::anAnsweredFriendRequestIsWithdrawn_data()
{
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("accepted") << true;
    QTest::newRow("declined") << false;
}

void TestNotificationClicks::anAnsweredFriendRequestIsWithdrawn()
{
    QFETCH(bool, isAccepted);
    QVERIFY(m_world->admin.AddContact(Friend, User, QString(), QStringLiteral("requested")));
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    const uint id = m_server->shown.last().id;
    m_world->admin.SetFriendLimit(1000); // an unrelated change
    settle();
    QVERIFY(m_server->isOnScreen(id));
    FriendRequests requests(m_world->book);
    QCOMPARE(isAccepted ? requests.accept(Friend) : requests.decline(Friend), QString(Outcome::Ok));
    settle();
    QTRY_VERIFY(!m_server->isOnScreen(id));
    QCOMPARE(m_server->shown.size(), 1);
}

void TestNotificationClicks::whatIsNoLongerTrueIsWithdrawn_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"joined", "deleted", "ended by the host", "over", "logged out"}) {
        QTest::newRow(what) << QString::fromLatin1(what);
    }
}

void TestNotificationClicks::whatIsNoLongerTrueIsWithdrawn()
{
    QFETCH(QString, what);
    addConference("1", "设计讨论", MinuteMsecs);
    settle();
    pass(MinuteMsecs);
    const uint id = m_server->shown.last().id;
    settle();
    QVERIFY(m_server->isOnScreen(id));
    if (what == QLatin1String("joined")) {
        const QJsonObject parameters{{QStringLiteral("conferenceId"), QStringLiteral("1")}};
        QCOMPARE(m_world->ask(QStringLiteral("Join Conference"), parameters)
                     .value(QLatin1String("ret"))
                     .toString(),
                 QStringLiteral("OK"));
    } else if (what == QLatin1String("deleted")) {
        m_world->ask(
            QStringLiteral("Delete Conference"),
            QJsonObject{{QStringLiteral("conferenceId"), m_world->conferenceId(QStringLiteral("1"))}});
        QVERIFY(m_world->conference(QStringLiteral("1")).isEmpty());
    } else if (what == QLatin1String("ended by the host")) {
        QVERIFY(m_world->admin.SetConferenceState(QStringLiteral("1"), QStringLiteral("ended")));
    } else if (what == QLatin1String("over")) {
        m_world->nowMsecs += 2 * HourMsecs;
        m_reminders->look();
    } else {
        m_world->admin.Logout();
    }
    QTRY_VERIFY(!m_server->isOnScreen(id));
}

QTEST_GUILESS_MAIN(TestNotificationClicks)
#include "tst_notificationclicks.moc"
