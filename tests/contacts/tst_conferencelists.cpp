// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "askedactions.h"
#include "sampleworld.h"

#include <QtTest>

#include <limits>

/// The lists of conferences for the window, from the sample directory and some ended conferences.
class TestConferenceLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatHasEndedComesLatestFirst();
    void whatEndsThisMomentHasEnded();
    void whatHasNotEndedComesByItsStart();
    void aCountStopsAtItsLimit();
    void seatsNameThoseWhoLeftToo();
};

namespace {

QStringList numbers(const QVector<Conference> &conferences)
{
    QStringList numbers;
    for (const Conference &conference : conferences) {
        numbers.append(conference.dialNumber);
    }
    return numbers;
}

QString me()
{
    return QStringLiteral("u100001");
}

void addEnded(SampleWorld &world, const char *number, qint64 endMsecs)
{
    QVERIFY(!world.admin
                 .AddConference(QString::fromLatin1(number), QStringLiteral("旧"), QStringLiteral("100001"),
                                endMsecs - MinuteMsecs, MinuteMsecs, 5, QString(), {})
                 .isEmpty());
}

} // namespace

void TestConferenceLists::whatHasEndedComesLatestFirst()
{
    SampleWorld world;
    addEnded(world, "1", world.nowMsecs - DayMsecs);
    addEnded(world, "2", world.nowMsecs - 2 * DayMsecs);
    addEnded(world, "3", world.nowMsecs - 40 * DayMsecs);
    const QStringList expected{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("880100008")};
    const qint64 from = world.nowMsecs - 30 * DayMsecs;
    ConferenceRepository &conferences = world.book.conferences();
    QCOMPARE(numbers(conferences.endedOfUser(me(), from, world.nowMsecs, 10)), expected);
    QCOMPARE(numbers(conferences.endedOfUser(me(), from, world.nowMsecs, 2)), expected.mid(0, 2));
    QCOMPARE(numbers(conferences.ended(from, world.nowMsecs, me(), 10)), expected);
    QVERIFY(conferences.endedOfUser(QStringLiteral("u100002"), from, world.nowMsecs, 10).isEmpty());
    QCOMPARE(conferences.ended(from, world.nowMsecs, me(), 1).constFirst().participants.size(), 1);
}

void TestConferenceLists::whatEndsThisMomentHasEnded()
{
    SampleWorld world;
    addEnded(world, "1", world.nowMsecs);
    ConferenceRepository &conferences = world.book.conferences();
    const qint64 from = world.nowMsecs - DayMsecs;
    QCOMPARE(numbers(conferences.endedOfUser(me(), from, world.nowMsecs, 10)),
             QStringList(QStringLiteral("1")));
    QVERIFY(!numbers(conferences.endingAfter(world.nowMsecs, me(), 100)).contains(QStringLiteral("1")));
    QVERIFY(numbers(conferences.endingAfter(world.nowMsecs - 1, me(), 100)).contains(QStringLiteral("1")));
}

void TestConferenceLists::whatHasNotEndedComesByItsStart()
{
    SampleWorld world;
    const QVector<Conference> found = world.book.conferences().endingAfter(world.nowMsecs, me(), 100);
    QCOMPARE(found.size(), 8); // all but last week's
    QCOMPARE(found.constFirst().dialNumber, QStringLiteral("880100004"));
    QVERIFY(std::is_sorted(found.cbegin(), found.cend(), [](const Conference &one, const Conference &other) {
        return one.startMsecs < other.startMsecs;
    }));
    QCOMPARE(numbers(world.book.conferences().endingAfter(world.nowMsecs, me(), 3)),
             numbers(found.mid(0, 3)));
}

void TestConferenceLists::aCountStopsAtItsLimit()
{
    SampleWorld world;
    addEnded(world, "1", world.nowMsecs - DayMsecs);
    ConferenceRepository &conferences = world.book.conferences();
    const qint64 from = world.nowMsecs - 30 * DayMsecs;
    QCOMPARE(conferences.endedCountOfUser(me(), from, world.nowMsecs, 10), 2);
    QCOMPARE(conferences.endedCountOfUser(me(), from, world.nowMsecs, 1), 1);
    QCOMPARE(conferences.endedCountOfUser(QStringLiteral("u100002"), from, world.nowMsecs, 10), 0);
    QCOMPARE(conferences.endedCount(from, world.nowMsecs, 10), 2);
    QCOMPARE(conferences.endedCount(world.nowMsecs - 2 * DayMsecs, world.nowMsecs, 10), 1);
}

void TestConferenceLists::seatsNameThoseWhoLeftToo()
{
    SampleWorld world;
    QCOMPARE(ret(world.ask(JoinMy)), QStringLiteral("OK"));
    QCOMPARE(ret(world.ask(Exit)), QStringLiteral("OK"));
    const Conference left = *world.book.conferences().byDialNumber(QStringLiteral("880100001"), me());
    const QVector<Participant> seats = world.book.conferences().seats(left.id, me());
    QCOMPARE(seats.size(), left.participants.size() + 1);
    const auto mine = std::find_if(seats.cbegin(), seats.cend(),
                                   [](const Participant &seat) { return seat.userId == me(); });
    QVERIFY(mine != seats.cend());
    QCOMPARE(mine->attendance, Attendance::Left);
}

QTEST_MAIN(TestConferenceLists)
#include "tst_conferencelists.moc"
