// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminderstest.h"

#include "core/statement.h"

#include <QElapsedTimer>
#include <QtTest>

#include <ctime>
#include <limits>

/// When reminders come and when they don't: the clock, the time zone, restarts, settings.
class TestReminders : public RemindersTest
{
    Q_OBJECT

private Q_SLOTS:
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
    void manyConferencesCostNothing();
};

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
    // It replaces the first, so that only one is on screen.
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
    // With nothing due, it looks again in an hour at the latest.
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
    // Forward past the first reminder into the conference, then back again.
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
    for (const char *zone : {"Pacific/Pago_Pago", "Pacific/Kiritimati"}) { // the day before, and the same day
        qputenv("TZ", zone);
        tzset();
        pass(0);
        QCOMPARE(m_server->shown.size(), 2);
    }
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
    QTRY_VERIFY(!m_server->isOnScreen(1)); // its time is out of date
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
    set(true, 30); // a shown reminder is not repeated
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    set(true, 100000);
    QCOMPARE(book.reminders().settings().leadMinutes, ReminderSettings::MaxLeadMinutes);
    set(false, 5);
    settle();
    pass(9 * MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 1);
    QVERIFY(m_world->admin.LoadSample()); // replaces the content but keeps the settings
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
    invite("1", "设计讨论", HourMsecs);
    QVERIFY(m_world->admin.AddContact(Friend, User, QString(), QStringLiteral("requested")));
    settle();
    turn(true);
    QCOMPARE(m_server->summaries(), QStringList());
    pass(55 * MinuteMsecs); // the reminder still comes
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("设计讨论：5 分钟后开始")});
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
