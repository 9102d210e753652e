// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notificationserver.h"
#include "sampleworld.h"

#include "logcapture.h"

#include "core/statement.h"
#include "reminders/reminders.h"
#include "reminders/walltimer.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QtTest>

#include <ctime>

namespace {

constexpr qint64 HourMsecs = 60 * MinuteMsecs;
const auto User = QStringLiteral("100001");
const auto Friend = QStringLiteral("100003");

} // namespace

/// Notifications over a private bus; the test's clock is the application's, so nothing waits for minutes.
class TestReminders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theyComeBeforeAndAtTheStartOnce();
    void theyWaitForTheRightMoment();
    void whatIsNotToBeAttendedIsNotRemindedOf_data();
    void whatIsNotToBeAttendedIsNotRemindedOf();
    void onceEachAcrossRestarts();
    void afterSleepOnlyWhatStillRunsIsShown();
    void aClockSetBackShowsNothingTwice();
    void aClockThatWasAheadDoesNotTakeTheNextReminder();
    void anotherTimeZoneChangesOnlyTheText();
    void aMovedConferenceRemindsAnew();
    void theSwitchAndTheLeadTimeHold();
    void whatCameWhileSwitchedOffIsNotTold();
    void aServerThatComesLateGetsThem();
    void aServerThatRefusesIsAskedAgain();
    void aServerThatStaysSilentIsNotAskedTwice();
    void whatCannotBeNotedIsNotRepeated();
    void whatCouldNotBeNotedIsNotedLater();
    void afterAFailureItLooksAgainSoon();
    void joiningFromTheNotification();
    void anothersNotificationJoinsNobody();
    void joiningTooEarlySaysSo();
    void aClickOnTheNotificationShowsTheWindow();
    void othersNotificationsAreLeftAlone();
    void whatIsNoLongerTrueIsWithdrawn_data();
    void whatIsNoLongerTrueIsWithdrawn();
    void invitationsAreTold();
    void anInvitationToARunningConferenceIsOneNotification();
    void anInvitationIsDeclined();
    void friendRequestsAreTold();
    void theNextUserIsToldAtLogin();
    void theSampleInvitesNobody();
    void namesAndTitlesAreNoMarkup();
    void nothingIsAskedOfTheServerWithinARequest();
    void aMomentOfTheCalendarIsWaitedFor();
    void aClockThatIsNotSetIsNeverDue();
    void manyConferencesCostNothing();

private:
    /// A conference of the user's with the friend, neither of them in it.
    void addConference(const char *number, const char *title, qint64 inMsecs, qint64 lastsMsecs = HourMsecs,
                       const QString &host = User)
    {
        const QString id = m_world->admin.AddConference(QString::fromLatin1(number), QString::fromUtf8(title),
                                                        host, m_world->nowMsecs + inMsecs, lastsMsecs, 10,
                                                        QString(), {User, Friend});
        QVERIFY(!id.isEmpty());
        // Told elsewhere, unless a test is about it.
        QVERIFY(m_world->book.change([this] {
            m_world->book.reminders().forgetNews();
            return true;
        }));
    }
    void restart()
    {
        m_reminders = std::make_unique<Reminders>(m_world->book, QDBusConnection::sessionBus());
    }
    /// Lets the application look, and the server answer.
    void settle()
    {
        m_reminders->look();
        QVERIFY(QTest::qWaitFor([this] { return m_reminders->isSettled(); }));
    }
    void pass(qint64 msecs)
    {
        m_world->nowMsecs += msecs;
        settle();
    }
    QString lastBody() const { return m_server->shown.isEmpty() ? QString() : m_server->shown.last().body; }

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<SampleWorld> m_world;
    std::unique_ptr<NotificationServer> m_server;
    std::unique_ptr<Reminders> m_reminders;
};

void TestReminders::init()
{
    m_log = std::make_unique<LogCapture>();
    m_world = std::make_unique<SampleWorld>();
    // It runs already and would be reminded of at once.
    QVERIFY(m_world->admin.SetConferenceState(QStringLiteral("880100001"), QStringLiteral("ended")));
    m_server = std::make_unique<NotificationServer>();
    restart();
    settle();
    QCOMPARE(m_server->summaries(), QStringList());
}

void TestReminders::cleanup()
{
    m_reminders.reset();
    m_server.reset();
    m_world.reset();
    m_log.reset();
    qputenv("TZ", "Asia/Shanghai");
    tzset();
}

void TestReminders::theyComeBeforeAndAtTheStartOnce()
{
    addConference("1", "设计讨论", 10 * MinuteMsecs);
    settle();
    QCOMPARE(m_server->shown.size(), 0);
    pass(5 * MinuteMsecs - 1);
    QCOMPARE(m_server->shown.size(), 0);
    pass(1);
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：5 分钟后开始")});
    QCOMPARE(lastBody(), QStringLiteral("10:30–11:30\n会议号：1"));
    QCOMPARE(m_server->shown.last().actions, QStringList({QStringLiteral("default"), QStringLiteral("查看"),
                                                          QStringLiteral("join"), QStringLiteral("加入")}));
    pass(0);
    pass(5 * MinuteMsecs - 1);
    QCOMPARE(m_server->shown.size(), 1);
    pass(1);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论：现在开始"));
    // In the place of the first, so that only one of them is on the screen.
    QCOMPARE(m_server->shown.last().id, m_server->shown.first().id);
    for (int minute = 0; minute < 90; ++minute) {
        pass(MinuteMsecs);
    }
    QCOMPARE(m_server->shown.size(), 2);
}

void TestReminders::theyWaitForTheRightMoment()
{
    addConference("1", "设计讨论", 20 * MinuteMsecs);
    const qint64 start = m_world->nowMsecs + 20 * MinuteMsecs;
    settle();
    QCOMPARE(m_reminders->nextLookMsecs(), start - 5 * MinuteMsecs);
    pass(15 * MinuteMsecs);
    QCOMPARE(m_reminders->nextLookMsecs(), start);
    pass(5 * MinuteMsecs);
    QCOMPARE(m_reminders->nextLookMsecs(), start + HourMsecs); // its end
    pass(HourMsecs);
    // Nothing near: at the latest in an hour.
    QCOMPARE(m_reminders->nextLookMsecs(), start + 2 * HourMsecs);
}

void TestReminders::whatIsNotToBeAttendedIsNotRemindedOf_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"declined", "ended", "joined", "deleted", "not invited", "logged out"}) {
        QTest::newRow(what) << QString::fromLatin1(what);
    }
}

void TestReminders::whatIsNotToBeAttendedIsNotRemindedOf()
{
    QFETCH(QString, what);
    addConference("1", "设计讨论", 10 * MinuteMsecs);
    ContactsBook &book = m_world->book;
    const qint64 id = book.conferences().byDialNumber(QStringLiteral("1"), QString())->id;
    const QString userId = book.session().user()->userId;
    QVERIFY(book.change([&] {
        if (what == QLatin1String("declined")) {
            book.conferences().setAttendance(id, userId, Attendance::Left);
        } else if (what == QLatin1String("joined")) {
            book.conferences().setAttendance(id, userId, Attendance::Joined);
        } else if (what == QLatin1String("ended")) {
            book.conferences().setTimes(id, m_world->nowMsecs - HourMsecs, HourMsecs);
        } else if (what == QLatin1String("deleted")) {
            book.conferences().remove(id);
        } else if (what == QLatin1String("logged out")) {
            book.session().logout();
        } else {
            Statement(book.database().handle(),
                      QStringLiteral("DELETE FROM participant WHERE conference_id = ? AND user_id = ?"))
                .bind(id)
                .bind(userId)
                .run();
        }
        return true;
    }));
    settle();
    pass(5 * MinuteMsecs);
    pass(5 * MinuteMsecs);
    pass(5 * MinuteMsecs);
    QCOMPARE(m_server->summaries(), QStringList());
}

void TestReminders::onceEachAcrossRestarts()
{
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    for (int round = 0; round < 3; ++round) {
        restart();
        settle();
        QCOMPARE(m_server->shown.size(), 1);
    }
    pass(5 * MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 2);
    for (int round = 0; round < 3; ++round) {
        restart();
        settle();
        QCOMPARE(m_server->shown.size(), 2);
    }
}

void TestReminders::afterSleepOnlyWhatStillRunsIsShown()
{
    addConference("1", "结束了", 10 * MinuteMsecs, 30 * MinuteMsecs);
    addConference("2", "还在开", 10 * MinuteMsecs, 3 * HourMsecs);
    addConference("3", "快开始", 2 * HourMsecs + 3 * MinuteMsecs);
    settle();
    pass(2 * HourMsecs);
    QCOMPARE(m_server->summaries(), QStringList({QStringLiteral("还在开：已于 10:30 开始"),
                                                 QStringLiteral("快开始：3 分钟后开始")}));
    pass(24 * HourMsecs * 20);
    QCOMPARE(m_server->shown.size(), 2);
}

void TestReminders::aClockSetBackShowsNothingTwice()
{
    addConference("1", "设计讨论", 10 * MinuteMsecs);
    settle();
    pass(5 * MinuteMsecs);
    pass(6 * MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 2);
    pass(-10 * MinuteMsecs); // before both
    for (int minute = 0; minute < 60; ++minute) {
        pass(MinuteMsecs);
    }
    QCOMPARE(m_server->shown.size(), 2);
}

void TestReminders::aClockThatWasAheadDoesNotTakeTheNextReminder()
{
    addConference("1", "设计讨论", 3 * HourMsecs);
    settle();
    // Past the first reminder and into the conference, then back where it was.
    pass(3 * HourMsecs + MinuteMsecs);
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：已于 13:20 开始")});
    pass(-3 * HourMsecs - MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 1);
    QCOMPARE(m_reminders->nextLookMsecs(), m_world->nowMsecs + HourMsecs);
    pass(3 * HourMsecs - 5 * MinuteMsecs);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论：5 分钟后开始"));
}

void TestReminders::anotherTimeZoneChangesOnlyTheText()
{
    addConference("1", "设计讨论", 10 * MinuteMsecs);
    settle();
    pass(5 * MinuteMsecs);
    QCOMPARE(lastBody(), QStringLiteral("10:30–11:30\n会议号：1"));
    qputenv("TZ", "Europe/Berlin");
    tzset();
    pass(0);
    QCOMPARE(m_server->shown.size(), 1);
    pass(5 * MinuteMsecs);
    QCOMPARE(lastBody(), QStringLiteral("03:30–04:30\n会议号：1"));
    qputenv("TZ", "Pacific/Kiritimati"); // another day there
    tzset();
    pass(0);
    QCOMPARE(m_server->shown.size(), 2);
}

void TestReminders::aMovedConferenceRemindsAnew()
{
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    ContactsBook &book = m_world->book;
    const qint64 id = book.conferences().byDialNumber(QStringLiteral("1"), QString())->id;
    QVERIFY(book.change([&] {
        book.conferences().setTimes(id, m_world->nowMsecs + HourMsecs, HourMsecs);
        return true;
    }));
    settle();
    QTRY_VERIFY(!m_server->isOnScreen(1)); // it says a time that is not true any more
    pass(55 * MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 2);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论：5 分钟后开始"));
}

void TestReminders::theSwitchAndTheLeadTimeHold()
{
    ContactsBook &book = m_world->book;
    const auto set = [&book](bool isOn, int minutes) {
        QVERIFY(book.change([&] {
            book.reminders().setSettings({isOn, minutes});
            return true;
        }));
    };
    addConference("1", "设计讨论", 20 * MinuteMsecs);
    set(false, 30);
    settle();
    pass(10 * MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 0);
    set(true, 9);
    settle();
    QCOMPARE(m_server->shown.size(), 0);
    pass(MinuteMsecs);
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：9 分钟后开始")});
    set(true, 30); // what was shown is not shown again
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    set(true, 100000);
    QCOMPARE(book.reminders().settings().leadMinutes, ReminderSettings::MaxLeadMinutes);
    set(false, 5);
    settle();
    pass(9 * MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 1);
    QVERIFY(m_world->admin.LoadSample()); // other content, the same user's wishes
    QCOMPARE(book.reminders().settings().isOn, false);
}

void TestReminders::whatCameWhileSwitchedOffIsNotTold()
{
    const auto turn = [this](bool isOn) {
        QVERIFY(m_world->book.change([this, isOn] {
            m_world->book.reminders().setSettings({isOn, 5});
            return true;
        }));
        settle();
    };
    turn(false);
    m_world->admin.AddConference(QStringLiteral("1"), QStringLiteral("设计讨论"), Friend,
                                 m_world->nowMsecs + HourMsecs, HourMsecs, 10, QString(), {User});
    QVERIFY(m_world->admin.AddContact(Friend, User, QString(), QStringLiteral("requested")));
    settle();
    turn(true);
    QCOMPARE(m_server->summaries(), QStringList());
    pass(55 * MinuteMsecs); // but reminded of it
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：5 分钟后开始")});
}

void TestReminders::aServerThatComesLateGetsThem()
{
    m_server.reset();
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    pass(2 * MinuteMsecs);
    m_server = std::make_unique<NotificationServer>();
    QTRY_COMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：3 分钟后开始")});
}

void TestReminders::aServerThatRefusesIsAskedAgain()
{
    m_server->mood = NotificationServer::Mood::Refuses;
    m_log->expect(QtWarningMsg, QStringLiteral("A notification was not taken: \"too many\""));
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    for (int round = 0; round < 10; ++round) {
        settle(); // whatever else makes it look
    }
    QCOMPARE(m_server->attempts, 1);
    QCOMPARE(m_reminders->nextLookMsecs(), m_world->nowMsecs + MinuteMsecs);
    m_server->mood = NotificationServer::Mood::Shows;
    pass(MinuteMsecs);
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：4 分钟后开始")});
}

void TestReminders::aServerThatStaysSilentIsNotAskedTwice()
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

void TestReminders::whatCannotBeNotedIsNotRepeated()
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

void TestReminders::whatCouldNotBeNotedIsNotedLater()
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

void TestReminders::afterAFailureItLooksAgainSoon()
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

void TestReminders::joiningFromTheNotification()
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

void TestReminders::anothersNotificationJoinsNobody()
{
    addConference("1", "设计讨论", MinuteMsecs, HourMsecs);
    settle();
    pass(MinuteMsecs);
    m_server->click(m_server->shown.last().id, QStringLiteral("join"));
    m_server->flush();
    // The click comes before the answer to this, and is handled after the login.
    QVERIFY(!QDBusConnection::sessionBus().interface()->isServiceRegistered(QStringLiteral("no.body")));
    QVERIFY(m_world->admin.Login(Friend));
    QCoreApplication::sendPostedEvents();
    const QString userId = m_world->book.session().user()->userId;
    QVERIFY(!m_world->book.conferences().joinedBy(userId, m_world->nowMsecs));
}

void TestReminders::joiningTooEarlySaysSo()
{
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    m_server->click(m_server->shown.last().id, QStringLiteral("join"));
    QTRY_COMPARE(m_server->shown.size(), 2);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论"));
    QCOMPARE(lastBody(), QStringLiteral("会议还未开始，开始时会再次提醒您。"));
    pass(5 * MinuteMsecs);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论：现在开始"));
    // Somewhere else already.
    m_world->admin.SetEngagedElsewhere(true);
    m_server->click(m_server->shown.last().id, QStringLiteral("join"));
    QTRY_COMPARE(lastBody(), QStringLiteral("正在其他会议中。"));
}

void TestReminders::aClickOnTheNotificationShowsTheWindow()
{
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    settle();
    QSignalSpy wanted(m_reminders.get(), &Reminders::windowWanted);
    m_server->click(m_server->shown.last().id, QStringLiteral("default"));
    QTRY_COMPARE(wanted.count(), 1);
}

void TestReminders::othersNotificationsAreLeftAlone()
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
    // Somebody who is not the server.
    QDBusMessage forged = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"),
                                                     QStringLiteral("org.freedesktop.Notifications"),
                                                     QStringLiteral("ActionInvoked"));
    forged << mine << QStringLiteral("default");
    QVERIFY(QDBusConnection::sessionBus().send(forged));
    // Signals keep their order.
    m_server->shown.clear();
    QVERIFY(m_world->admin.AddContact(Friend, User, QString(), QStringLiteral("requested")));
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    m_server->click(m_server->shown.last().id, QStringLiteral("default"));
    QTRY_COMPARE(wanted.count(), 1);
    QVERIFY(!m_world->book.conferences().joinedBy(m_world->book.session().user()->userId, m_world->nowMsecs));
}

void TestReminders::whatIsNoLongerTrueIsWithdrawn_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"joined", "deleted", "ended by the host", "over", "logged out"}) {
        QTest::newRow(what) << QString::fromLatin1(what);
    }
}

void TestReminders::whatIsNoLongerTrueIsWithdrawn()
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

void TestReminders::invitationsAreTold()
{
    m_world->admin.AddConference(QStringLiteral("1"), QStringLiteral("设计讨论"), Friend,
                                 m_world->nowMsecs + 26 * HourMsecs, HourMsecs, 10, QString(), {User});
    settle();
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("李娜邀请您参加“设计讨论”")});
    QCOMPARE(lastBody(), QStringLiteral("3月8日 12:20–13:20\n会议号：1"));
    QVERIFY(!m_server->shown.last().actions.contains(QStringLiteral("join")));
    restart();
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    pass(26 * HourMsecs - 5 * MinuteMsecs);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论：5 分钟后开始"));
    QCOMPARE(lastBody(), QStringLiteral("12:20–13:20\n主持人：李娜\n会议号：1"));
    // One's own conferences are no invitations.
    const int before = m_server->shown.size();
    m_world->admin.AddConference(QStringLiteral("2"), QStringLiteral("自己的"), User,
                                 m_world->nowMsecs + 26 * HourMsecs, HourMsecs, 10, QString(), {Friend});
    settle();
    QCOMPARE(m_server->shown.size(), before);
}

void TestReminders::anInvitationToARunningConferenceIsOneNotification()
{
    m_world->admin.AddConference(QStringLiteral("1"), QStringLiteral("设计讨论"), Friend,
                                 m_world->nowMsecs - MinuteMsecs, HourMsecs, 10, QString(), {User});
    m_world->admin.AddConference(QStringLiteral("2"), QStringLiteral("马上开始"), Friend,
                                 m_world->nowMsecs + MinuteMsecs, HourMsecs, 10, QString(), {User});
    m_world->admin.AddConference(QStringLiteral("3"), QStringLiteral("结束了"), Friend,
                                 m_world->nowMsecs - HourMsecs, HourMsecs, 10, QString(), {User});
    settle();
    QCOMPARE(m_server->summaries(), QStringList({QStringLiteral("李娜邀请您参加“设计讨论”"),
                                                 QStringLiteral("李娜邀请您参加“马上开始”")}));
    QCOMPARE(m_server->shown.first().body, QStringLiteral("10:19–11:19\n正在进行\n会议号：1"));
    QVERIFY(m_server->shown.first().actions.contains(QStringLiteral("join")));
    settle();
    QCOMPARE(m_server->shown.size(), 2);
    pass(MinuteMsecs);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("马上开始：现在开始"));
    QCOMPARE(m_server->shown.size(), 3);
}

void TestReminders::anInvitationIsDeclined()
{
    m_world->admin.AddConference(QStringLiteral("1"), QStringLiteral("设计讨论"), Friend,
                                 m_world->nowMsecs + HourMsecs, HourMsecs, 10, QString(), {User});
    settle();
    m_server->click(m_server->shown.last().id, QStringLiteral("decline"));
    const QString userId = m_world->book.session().user()->userId;
    const qint64 id = m_world->book.conferences().byDialNumber(QStringLiteral("1"), QString())->id;
    QTRY_COMPARE(*m_world->book.conferences().attendance(id, userId), Attendance::Left);
    pass(HourMsecs - MinuteMsecs);
    pass(MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 1);
    // Who is invited again is told again.
    QVERIFY(m_world->book.change([&] {
        m_world->book.conferences().setAttendance(id, userId, Attendance::Invited);
        return true;
    }));
    settle();
    QCOMPARE(m_server->shown.size(), 2);
}

void TestReminders::friendRequestsAreTold()
{
    QVERIFY(
        m_world->admin.AddContact(QStringLiteral("100005"), User, QString(), QStringLiteral("requested")));
    settle();
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("小刘请求加您为好友")});
    QCOMPARE(lastBody(), QStringLiteral("账号：100005"));
    restart();
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    // One's own requests are not told to oneself.
    m_world->ask(QStringLiteral("Add Friends"),
                 QJsonObject{{QStringLiteral("userId"), QStringLiteral("200001")}});
    settle();
    QCOMPARE(m_server->shown.size(), 1);
}

void TestReminders::theNextUserIsToldAtLogin()
{
    QVERIFY(m_world->admin.Login(QStringLiteral("100002")));
    m_world->ask(QStringLiteral("Add Friends"), QJsonObject{{QStringLiteral("userId"), User}});
    m_world->ask(QStringLiteral("Create Conference"), membersNamed({QStringLiteral("王小明")}));
    settle();
    QCOMPARE(m_server->summaries(), QStringList());
    QVERIFY(m_world->admin.Login(User));
    settle();
    QCOMPARE(m_server->summaries(), QStringList({QStringLiteral("李静邀请您参加“李静的视频会议”"),
                                                 QStringLiteral("李静请求加您为好友")}));
}

void TestReminders::theSampleInvitesNobody()
{
    QVERIFY(m_world->admin.LoadSample());
    settle();
    // Of one that runs the user is reminded all the same.
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("部门早会：已于 10:00 开始")});
}

void TestReminders::namesAndTitlesAreNoMarkup()
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
    QCOMPARE(m_server->shown.last().actions, QStringList()); // this server has no buttons
}

void TestReminders::nothingIsAskedOfTheServerWithinARequest()
{
    addConference("1", "设计讨论", 5 * MinuteMsecs);
    QVERIFY(!m_reminders->isSettled());
    QCOMPARE(m_server->attempts, 0);
    QTRY_COMPARE(m_server->attempts, 1);
}

void TestReminders::aMomentOfTheCalendarIsWaitedFor()
{
    WallTimer timer;
    QSignalSpy timeout(&timer, &WallTimer::timeout);
    QElapsedTimer elapsed;
    elapsed.start();
    timer.start(30);
    QVERIFY(timeout.wait());
    QVERIFY(elapsed.elapsed() >= 30);
    timer.start(HourMsecs);
    QVERIFY(!timeout.wait(50));
    timer.start(-5); // past already
    QVERIFY(timeout.wait());
    QVERIFY(!timeout.wait(50)); // once
}

void TestReminders::aClockThatIsNotSetIsNeverDue()
{
    // What the kernel tells of this process's timers on the calendar's clock.
    static const QRegularExpression waits(
        QStringLiteral("clockid: %1\\n.*it_value: \\((\\d+),").arg(CLOCK_REALTIME),
        QRegularExpression::DotMatchesEverythingOption);
    const WallTimer timer;
    int found = 0;
    const QDir folder(QStringLiteral("/proc/self/fdinfo"));
    const QStringList descriptors = folder.entryList(QDir::Files);
    for (const QString &descriptor : descriptors) {
        QFile file(folder.filePath(descriptor));
        const QRegularExpressionMatch match =
            waits.match(file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString());
        if (match.hasMatch()) {
            constexpr qint64 century = 100LL * 365 * 24 * 3600;
            ++found;
            QVERIFY2(match.captured(1).toLongLong() > century, qPrintable(match.captured(1)));
        }
    }
    QVERIFY(found > 0);
}

void TestReminders::manyConferencesCostNothing()
{
    constexpr int count = 20000;
    ContactsBook &book = m_world->book;
    QVERIFY(book.change([&] {
        const QString userId = book.session().user()->userId;
        for (int i = 0; i < count; ++i) {
            Conference conference;
            conference.hostId = userId;
            conference.dialNumber = QString::number(100000 + i);
            conference.startMsecs = m_world->nowMsecs + (i % 2 == 0 ? 1 : -1) * (i + 50) * HourMsecs;
            conference.durationMsecs = HourMsecs;
            conference.participantLimit = 10;
            conference = book.conferences().add(conference);
            book.conferences().setAttendance(conference.id, userId, Attendance::Invited);
        }
        return true;
    }));
    settle();
    qint64 best = std::numeric_limits<qint64>::max();
    for (int round = 0; round < 20; ++round) {
        QElapsedTimer elapsed;
        elapsed.start();
        m_reminders->look();
        best = qMin(best, elapsed.nsecsElapsed());
    }
    qInfo("a look among %d conferences takes %.3f ms", count, double(best) / 1e6);
    QVERIFY2(best < 2000000, qPrintable(QString::number(best)));
}

QTEST_GUILESS_MAIN(TestReminders)
#include "tst_reminders.moc"
