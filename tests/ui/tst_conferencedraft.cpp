// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencedraft.h"
#include "testcolumns.h"

#include <QDateTime>
#include <QtTest>

namespace {

using Edit = void (*)(ConferenceValues &);

ContactDetailMsg halfPastNine()
{
    ContactDetailMsg conference;
    conference.startTime = QDateTime(QDate(2024, 3, 7), QTime(9, 30)).toMSecsSinceEpoch();
    conference.duration = 900000;
    conference.participantLimit = 20;
    return conference;
}

ConferenceDraft draftOf(const ContactDetailMsg &conference)
{
    ConferenceDraft draft;
    draft.setReference(conference);
    draft.working() = ConferenceValues::of(conference);
    return draft;
}

} // namespace

Q_DECLARE_METATYPE(Edit)

class TestConferenceDraft : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStartIsReadAsLocalDateAndTime();
    void whatCountsAsAChange_data();
    void whatCountsAsAChange();
    void aChangeTakenBackIsNone();
    void aNewReferenceLeavesTheWorkingValues();
    void anEmptyDraftIsUnchanged();
    void theWorkingValuesAreWritten();
    void aStartThatWasNotTouchedKeepsItsMilliseconds_data();
    void aStartThatWasNotTouchedKeepsItsMilliseconds();
};

void TestConferenceDraft::theStartIsReadAsLocalDateAndTime()
{
    const ConferenceValues values = ConferenceValues::of(halfPastNine());
    QCOMPARE(values.startDate, QDate(2024, 3, 7));
    QCOMPARE(values.startTime, QTime(9, 30));
    QCOMPARE(values.duration, Q_INT64_C(900000));
    QCOMPARE(values.participantLimit, 20);
}

void TestConferenceDraft::whatCountsAsAChange_data()
{
    addColumns<Edit, bool>({"edit", "changed"});
    QTest::newRow("nothing") << Edit([](ConferenceValues &) {}) << false;
    QTest::newRow("another day") << Edit([](ConferenceValues &values) {
        values.startDate = QDate(2024, 3, 8);
    }) << true;
    QTest::newRow("another hour") << Edit([](ConferenceValues &values) { values.startTime = QTime(9, 0); })
                                  << true;
    QTest::newRow("one second later")
        << Edit([](ConferenceValues &values) { values.startTime = QTime(9, 30, 1); }) << true;
    QTest::newRow("less than a second later")
        << Edit([](ConferenceValues &values) { values.startTime = QTime(9, 30, 0, 999); }) << false;
    QTest::newRow("one millisecond more of duration")
        << Edit([](ConferenceValues &values) { ++values.duration; }) << true;
    QTest::newRow("one person more") << Edit([](ConferenceValues &values) { ++values.participantLimit; })
                                     << true;
}

void TestConferenceDraft::whatCountsAsAChange()
{
    QFETCH(Edit, edit);
    ConferenceDraft draft = draftOf(halfPastNine());
    edit(draft.working());
    QTEST(draft.isChanged(), "changed");
}

void TestConferenceDraft::aChangeTakenBackIsNone()
{
    ConferenceDraft draft = draftOf(halfPastNine());
    draft.working().duration = 1800000;
    QVERIFY(draft.isChanged());
    draft.working().duration = 900000;
    QVERIFY(!draft.isChanged());
}

void TestConferenceDraft::aNewReferenceLeavesTheWorkingValues()
{
    ConferenceDraft draft = draftOf(halfPastNine());
    ContactDetailMsg other = halfPastNine();
    other.participantLimit = 30;
    draft.setReference(other);
    QVERIFY(draft.isChanged());
    QCOMPARE(draft.working().participantLimit, 20);
}

void TestConferenceDraft::anEmptyDraftIsUnchanged()
{
    QVERIFY(!ConferenceDraft().isChanged());
}

void TestConferenceDraft::theWorkingValuesAreWritten()
{
    ContactDetailMsg conference = halfPastNine();
    ConferenceDraft draft = draftOf(conference);
    draft.working() = {QDate(2024, 12, 31), QTime(23, 0), 7, 3600000};
    draft.applyTo(conference);
    QCOMPARE(conference.startTime, QDateTime(QDate(2024, 12, 31), QTime(23, 0)).toMSecsSinceEpoch());
    QCOMPARE(conference.participantLimit, 7);
    QCOMPARE(conference.duration, Q_INT64_C(3600000));
}

void TestConferenceDraft::aStartThatWasNotTouchedKeepsItsMilliseconds_data()
{
    addColumns<QByteArray, qint64>({"zone", "startTime"});
    QTest::newRow("a half hour") << QByteArray("Asia/Shanghai") << halfPastNine().startTime;
    // 02:30 local time, which occurs twice that night.
    QTest::newRow("the first of two equal hours") << QByteArray("Europe/Berlin") << Q_INT64_C(1729989000000);
    QTest::newRow("the second of two equal hours") << QByteArray("Europe/Berlin") << Q_INT64_C(1729992600000);
}

void TestConferenceDraft::aStartThatWasNotTouchedKeepsItsMilliseconds()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, startTime);
    const QByteArray zoneBefore = qgetenv("TZ");
    qputenv("TZ", zone);
    ContactDetailMsg conference = halfPastNine();
    conference.startTime = startTime;
    const ConferenceDraft draft = draftOf(conference);
    draft.applyTo(conference);
    qputenv("TZ", zoneBefore);
    QCOMPARE(conference.startTime, startTime);
}

QTEST_APPLESS_MAIN(TestConferenceDraft)
#include "tst_conferencedraft.moc"
