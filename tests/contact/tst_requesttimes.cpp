// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactutils.h"
#include "logcapture.h"
#include "testcolumns.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

/// The start time and zone of this run, for example "2026-03-07 09:30:00 Asia/Shanghai".
QString clockOfThisRun()
{
    return QString::fromLocal8Bit(qgetenv("CONTACT_TEST_CLOCK"));
}

QString slotWith(const char *suggestDatetime)
{
    return QStringLiteral(R"({"suggestDatetime": "%1"})").arg(QString::fromUtf8(suggestDatetime));
}

QString utcText(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC).toString(Qt::ISODate);
}

constexpr char ShanghaiMorning[] = "2026-03-07 09:30:00 Asia/Shanghai";
constexpr char ShanghaiNight[] = "2026-03-07 23:40:00 Asia/Shanghai";
constexpr char MonthEnd[] = "2026-04-30 23:40:00 Asia/Shanghai";
constexpr char YearEnd[] = "2026-12-31 23:40:00 Asia/Shanghai";
constexpr char BeforeLeapDay[] = "2028-02-28 23:40:00 Asia/Shanghai";
constexpr char LeapDay[] = "2028-02-29 23:40:00 Asia/Shanghai";
constexpr char BerlinBeforeTheMissingHour[] = "2026-03-29 01:30:00 Europe/Berlin";
constexpr char BerlinDayBefore[] = "2026-03-28 23:40:00 Europe/Berlin";
constexpr char BerlinBeforeTheRepeatedHour[] = "2026-10-25 01:30:00 Europe/Berlin";
constexpr char BeirutBeforeTheMissingMidnight[] = "2026-03-28 23:40:00 Asia/Beirut";

struct Schedule
{
    const char *name;
    const char *clock;
    QString slot;
    const char *startUtc; ///< computed by hand, independently of Qt's time zones
    bool isAccepted;
};

QVector<Schedule> schedules()
{
    const QString none;
    return {
        {"no time: the next full hour", ShanghaiMorning, none, "2026-03-07T02:00:00Z", true},
        {"today: the next full hour", ShanghaiMorning, slotWith("2026-03-07"), "2026-03-07T02:00:00Z", true},
        {"tomorrow: nine o'clock", ShanghaiMorning, slotWith("2026-03-08"), "2026-03-08T01:00:00Z", true},
        {"yesterday: past", ShanghaiMorning, slotWith("2026-03-06"), "2026-03-06T01:00:00Z", false},
        {"a time to come", ShanghaiMorning, slotWith("2026-03-07T10:20:00"), "2026-03-07T02:20:00Z", true},
        {"a time to come, with seconds", ShanghaiMorning, slotWith("2026-03-07T10:20:07"),
         "2026-03-07T02:20:07Z", true},
        {"a past time", ShanghaiMorning, slotWith("2026-03-07T09:00:00"), "2026-03-07T01:00:00Z", false},
        {"last year's leap day", ShanghaiMorning, slotWith("2024-02-29"), "2024-02-29T01:00:00Z", false},
        {"no such day", ShanghaiMorning, slotWith("2026-02-29"), "1970-01-01T00:00:00Z", false},
        {"no such day, with a time", ShanghaiMorning, slotWith("2026-13-45T10:00:00"), "1970-01-01T00:00:00Z",
         false},
        {"no such time", ShanghaiMorning, slotWith("2026-03-08T25:00:00"), "1970-01-01T00:00:00Z", false},
        {"a time without seconds", ShanghaiMorning, slotWith("2026-03-08T10:00"), "1970-01-01T00:00:00Z",
         false},
        {"a day of one digit", ShanghaiMorning, slotWith("2026-03-8"), "1970-01-01T00:00:00Z", false},
        {"a day with other separators", ShanghaiMorning, slotWith("2026/03/08"), "1970-01-01T00:00:00Z",
         false},
        {"a day with more after it", ShanghaiMorning, slotWith("2026-03-08 "), "1970-01-01T00:00:00Z", false},
        {"a day in Arabic digits", ShanghaiMorning, slotWith("٢٠٢٦-٠٣-٠٨"), "1970-01-01T00:00:00Z", false},
        {"a year with a sign", ShanghaiMorning, slotWith("+026-03-08"), "1970-01-01T00:00:00Z", false},
        {"a time with a zone", ShanghaiMorning, slotWith("2026-03-08T10:00:00Z"), "1970-01-01T00:00:00Z",
         false},
        {"a time with a fraction", ShanghaiMorning, slotWith("2026-03-08T10:00:00.5"), "1970-01-01T00:00:00Z",
         false},
        {"a blank for the mark", ShanghaiMorning, slotWith("2026-03-08 10:00:00"), "1970-01-01T00:00:00Z",
         false},
        {"the mark alone", ShanghaiMorning, slotWith("T"), "1970-01-01T00:00:00Z", false},
        {"a word", ShanghaiMorning, slotWith("tomorrow"), "1970-01-01T00:00:00Z", false},

        {"no time: midnight", ShanghaiNight, none, "2026-03-07T16:00:00Z", true},
        {"today: midnight", ShanghaiNight, slotWith("2026-03-07"), "2026-03-07T16:00:00Z", true},
        {"tomorrow: nine o'clock, not midnight", ShanghaiNight, slotWith("2026-03-08"),
         "2026-03-08T01:00:00Z", true},

        {"no time: the next month", MonthEnd, none, "2026-04-30T16:00:00Z", true},
        {"today: the next month", MonthEnd, slotWith("2026-04-30"), "2026-04-30T16:00:00Z", true},
        {"tomorrow: the next month", MonthEnd, slotWith("2026-05-01"), "2026-05-01T01:00:00Z", true},

        {"no time: the next year", YearEnd, none, "2026-12-31T16:00:00Z", true},
        {"today: the next year", YearEnd, slotWith("2026-12-31"), "2026-12-31T16:00:00Z", true},
        {"tomorrow: the next year", YearEnd, slotWith("2027-01-01"), "2027-01-01T01:00:00Z", true},

        {"no time: the leap day", BeforeLeapDay, none, "2028-02-28T16:00:00Z", true},
        {"tomorrow: the leap day", BeforeLeapDay, slotWith("2028-02-29"), "2028-02-29T01:00:00Z", true},
        {"no time: after the leap day", LeapDay, none, "2028-02-29T16:00:00Z", true},
        {"today: after the leap day", LeapDay, slotWith("2028-02-29"), "2028-02-29T16:00:00Z", true},

        // The clock skips 02:00 to 03:00.
        {"no time: after the missing hour", BerlinBeforeTheMissingHour, none, "2026-03-29T01:00:00Z", true},
        {"today: after the missing hour", BerlinBeforeTheMissingHour, slotWith("2026-03-29"),
         "2026-03-29T01:00:00Z", true},
        {"in the missing hour", BerlinBeforeTheMissingHour, slotWith("2026-03-29T02:30:00"),
         "2026-03-29T01:30:00Z", true},
        {"after the missing hour", BerlinBeforeTheMissingHour, slotWith("2026-03-29T03:30:00"),
         "2026-03-29T01:30:00Z", true},
        {"nine o'clock in summer", BerlinBeforeTheMissingHour, slotWith("2026-03-30"), "2026-03-30T07:00:00Z",
         true},
        {"no time: midnight in winter", BerlinDayBefore, none, "2026-03-28T23:00:00Z", true},
        {"nine o'clock on the short day", BerlinDayBefore, slotWith("2026-03-29"), "2026-03-29T07:00:00Z",
         true},
        {"nine o'clock on the long day", BerlinDayBefore, slotWith("2026-10-25"), "2026-10-25T08:00:00Z",
         true},
        {"nine o'clock in winter", BerlinBeforeTheRepeatedHour, slotWith("2026-10-26"),
         "2026-10-26T08:00:00Z", true},

        // The clock skips 00:00 to 01:00.
        {"no time: no midnight", BeirutBeforeTheMissingMidnight, none, "2026-03-28T22:00:00Z", true},
        {"nine o'clock without a midnight", BeirutBeforeTheMissingMidnight, slotWith("2026-03-29"),
         "2026-03-29T06:00:00Z", true},
    };
}

struct Query
{
    const char *name;
    const char *clock;
    QString slot;
    qint64 startIn;
    const char *startUtc; ///< empty for no range, "now" for the current time
    const char *endUtc;
    const char *exactUtc; ///< the start handed back to the caller; empty if unchanged
};

QVector<Query> queries()
{
    return {
        {"today: from now", ShanghaiMorning, slotWith("2026-03-07"), 0, "now", "2026-03-07T16:00:00Z", ""},
        {"tomorrow", ShanghaiMorning, slotWith("2026-03-08"), 0, "2026-03-07T16:00:00Z",
         "2026-03-08T16:00:00Z", ""},
        {"yesterday", ShanghaiMorning, slotWith("2026-03-06"), 0, "", "", ""},
        {"a time to come", ShanghaiMorning, slotWith("2026-03-07T15:00:00"), 0, "2026-03-07T07:00:00Z",
         "2026-03-07T16:00:00Z", "2026-03-07T07:00:00Z"},
        {"a time that is past today", ShanghaiMorning, slotWith("2026-03-07T08:00:00"), 0,
         "2026-03-07T00:00:00Z", "2026-03-07T16:00:00Z", "2026-03-07T00:00:00Z"},
        {"a time yesterday", ShanghaiMorning, slotWith("2026-03-06T23:59:59"), 0, "", "",
         "2026-03-06T15:59:59Z"},
        {"a time replaces what came in", ShanghaiMorning, slotWith("2026-03-08T15:00:00"), 5,
         "2026-03-08T07:00:00Z", "2026-03-08T16:00:00Z", "2026-03-08T07:00:00Z"},
        {"a positive start comes in", ShanghaiMorning, slotWith("2026-03-08"), 1000, "1970-01-01T00:00:01Z",
         "2026-03-08T16:00:00Z", ""},
        {"a negative start comes in", ShanghaiMorning, slotWith("2026-03-08"), -1000, "2026-03-07T16:00:00Z",
         "2026-03-08T16:00:00Z", ""},
        {"no such day", ShanghaiMorning, slotWith("2026-02-29"), 0, "", "", ""},
        {"no such time", ShanghaiMorning, slotWith("2026-03-08T24:00:00"), 5, "", "", "1970-01-01T00:00:00Z"},
        {"no text", ShanghaiMorning, QString(), 0, "", "", ""},
        {"not JSON", ShanghaiMorning, QStringLiteral("2026-03-08"), 0, "", "", ""},
        {"no date in it", ShanghaiMorning, QStringLiteral("{}"), 0, "", "", ""},
        {"date that is a number", ShanghaiMorning, QStringLiteral(R"({"suggestDatetime": 20260308})"), 0, "",
         "", ""},
        {"array", ShanghaiMorning, QStringLiteral(R"(["2026-03-08"])"), 0, "", "", ""},

        {"today at night", ShanghaiNight, slotWith("2026-03-07"), 0, "now", "2026-03-07T16:00:00Z", ""},
        {"the month's last day", MonthEnd, slotWith("2026-04-30"), 0, "now", "2026-04-30T16:00:00Z", ""},
        {"the year's last day", YearEnd, slotWith("2026-12-31"), 0, "now", "2026-12-31T16:00:00Z", ""},
        {"the next year's first", YearEnd, slotWith("2027-01-01"), 0, "2026-12-31T16:00:00Z",
         "2027-01-01T16:00:00Z", ""},
        {"the leap day tomorrow", BeforeLeapDay, slotWith("2028-02-29"), 0, "2028-02-28T16:00:00Z",
         "2028-02-29T16:00:00Z", ""},
        {"the leap day today", LeapDay, slotWith("2028-02-29"), 0, "now", "2028-02-29T16:00:00Z", ""},
        {"the short day", BerlinDayBefore, slotWith("2026-03-29"), 0, "2026-03-28T23:00:00Z",
         "2026-03-29T22:00:00Z", ""},
        {"in the missing hour", BerlinBeforeTheMissingHour, slotWith("2026-03-29T02:30:00"), 0,
         "2026-03-29T01:30:00Z", "2026-03-29T22:00:00Z", "2026-03-29T01:30:00Z"},
        {"the long day", BerlinDayBefore, slotWith("2026-10-25"), 0, "2026-10-24T22:00:00Z",
         "2026-10-25T23:00:00Z", ""},
        {"today, the long day", BerlinBeforeTheRepeatedHour, slotWith("2026-10-25"), 0, "now",
         "2026-10-25T23:00:00Z", ""},
        {"a day without midnight", BeirutBeforeTheMissingMidnight, slotWith("2026-03-29"), 0,
         "2026-03-28T22:00:00Z", "2026-03-29T21:00:00Z", ""},
        {"the day before one without midnight", BeirutBeforeTheMissingMidnight, slotWith("2026-03-28"), 0,
         "now", "2026-03-28T22:00:00Z", ""},
    };
}

} // namespace

/// Runs once per clock; each run tests the rows of its clock.
class TestRequestTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clockIsTheOneOfTheRun()
    {
        const QDateTime started = QDateTime::fromString(clockOfThisRun().section(QLatin1Char(' '), 0, 1),
                                                        QStringLiteral("yyyy-MM-dd hh:mm:ss"));
        QVERIFY2(started.isValid(), qPrintable(clockOfThisRun()));
        const qint64 age = started.secsTo(QDateTime::currentDateTime());
        QVERIFY2(age >= 0 && age < 600, qPrintable(QDateTime::currentDateTime().toString()));
        QCOMPARE(clockOfThisRun().section(QLatin1Char(' '), 2), QString::fromLocal8Bit(qgetenv("TZ")));
    }

    void scheduledStart_data()
    {
        addColumns<QString, QString, bool>({"slot", "start", "isAccepted"});
        const auto rows = schedules();
        for (const Schedule &row : rows) {
            if (clockOfThisRun() == QString::fromUtf8(row.clock)) {
                QTest::newRow(row.name) << row.slot << QString::fromUtf8(row.startUtc) << row.isAccepted;
            }
        }
    }
    void scheduledStart()
    {
        QFETCH(QString, slot);
        QFETCH(QString, start);
        QFETCH(bool, isAccepted);
        for (const bool flagIn : {true, false}) {
            if (slot.isEmpty() && !flagIn) {
                continue; // see emptySlotIsAccepted()
            }
            bool isSchedule = flagIn;
            qint64 msecs = -1;
            const LogCapture log;
            QCOMPARE(ContactUtils::scheduleTimeMsecsInit(slot, isSchedule, msecs), isAccepted);
            QCOMPARE(utcText(msecs), start);
            QCOMPARE(isSchedule, isAccepted || flagIn);
            QCOMPARE(log.records().size(), 1);
            QVERIFY(log.lines().constFirst().startsWith(QStringLiteral("debug: startTime QDateTime(")));
            QCOMPARE(log.lines().constFirst().endsWith(QStringLiteral(") true")), slot.isEmpty());
        }
    }

    void startTimeIsLoggedAsDateAndTime()
    {
        if (clockOfThisRun() != QString::fromUtf8(ShanghaiMorning)) {
            return QTest::qSkip("The expected texts are for another clock.", __FILE__, __LINE__);
        }
        bool isSchedule = true;
        qint64 msecs = 0;
        const LogCapture log;
        ContactUtils::scheduleTimeMsecsInit(QString(), isSchedule, msecs);
        ContactUtils::scheduleTimeMsecsInit(slotWith("2026-03-08"), isSchedule, msecs);
        QCOMPARE(
            log.lines(),
            QStringList(
                {QStringLiteral("debug: startTime QDateTime(2026-03-07 10:00:00.000 CST Qt::LocalTime) true"),
                 QStringLiteral("debug: startTime QDateTime(2026-03-08 09:00:00.000 CST Qt::LocalTime)")}));
    }

    void emptySlotIsAccepted()
    {
        bool isSchedule = false;
        qint64 msecs = 77;
        const LogCapture log;
        QVERIFY(ContactUtils::scheduleTimeMsecsInit(QString(), isSchedule, msecs));
        QCOMPARE(isSchedule, false);
        QCOMPARE(msecs, qint64(77));
        QCOMPARE(log.lines(), QStringList());
    }

    void fullHourThatComesTwiceIsInTheFuture()
    {
        if (clockOfThisRun() != QString::fromUtf8(BerlinBeforeTheRepeatedHour)) {
            return QTest::qSkip("This clock does not repeat an hour.", __FILE__, __LINE__);
        }
        bool isSchedule = true;
        qint64 msecs = 0;
        QVERIFY(ContactUtils::scheduleTimeMsecsInit(QString(), isSchedule, msecs));
        QCOMPARE(QDateTime::fromMSecsSinceEpoch(msecs).time(), QTime(2, 0));
        QVERIFY(msecs > QDateTime::currentMSecsSinceEpoch());
    }

    void unreadableSlotChangesNothing_data()
    {
        addColumns<QString, QString>({"slot", "warning"});
        const auto broken = [](const char *name, const char *slot) {
            QJsonParseError error;
            QJsonDocument::fromJson(slot, &error);
            QTest::newRow(name) << QString::fromUtf8(slot)
                                << QStringLiteral("response ret error.error: %1").arg(error.error);
        };
        broken("not JSON", "2026-03-08");
        broken("broken off", R"({"suggestDatetime": "2026-03-08")");
        broken("a blank", " ");
        const auto dateless = [](const char *name, const char *slot) {
            const QString text = QString::fromUtf8(slot);
            QString quoted;
            QDebug(&quoted).nospace() << text;
            QTest::newRow(name) << text << QStringLiteral("strDateTime is not json :  %1").arg(quoted);
        };
        dateless("no date in it", "{}");
        dateless("empty date", R"({"suggestDatetime": ""})");
        dateless("date that is a number", R"({"suggestDatetime": 20260308})");
        dateless("date that is null", R"({"suggestDatetime": null})");
        dateless("array", R"(["2026-03-08"])");
    }
    void unreadableSlotChangesNothing()
    {
        QFETCH(QString, slot);
        QFETCH(QString, warning);
        for (const bool flagIn : {true, false}) {
            bool isSchedule = flagIn;
            qint64 msecs = 77;
            LogCapture log;
            log.expect(QtWarningMsg, warning);
            QVERIFY(!ContactUtils::scheduleTimeMsecsInit(slot, isSchedule, msecs));
            QCOMPARE(isSchedule, flagIn);
            QCOMPARE(msecs, qint64(77));
            QCOMPARE(log.lines(), QStringList{QStringLiteral("warning: ") + warning});
        }
    }

    void queriedRange_data()
    {
        addColumns<QString, qint64, QString, QString, QString>({"slot", "startIn", "start", "end", "exact"});
        const auto rows = queries();
        for (const Query &row : rows) {
            if (clockOfThisRun() == QString::fromUtf8(row.clock)) {
                QTest::newRow(row.name) << row.slot << row.startIn << QString::fromUtf8(row.startUtc)
                                        << QString::fromUtf8(row.endUtc) << QString::fromUtf8(row.exactUtc);
            }
        }
    }
    void queriedRange()
    {
        QFETCH(QString, slot);
        QFETCH(qint64, startIn);
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, exact);
        qint64 queryStart = startIn;
        const LogCapture log;
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const QString text = ContactUtils::queryParamInit(slot, queryStart);
        const qint64 after = QDateTime::currentMSecsSinceEpoch();

        QCOMPARE(utcText(queryStart), exact.isEmpty() ? utcText(startIn) : exact);
        QCOMPARE(log.records().size(), 1);
        const QString line = log.lines().constFirst();
        if (start.isEmpty()) {
            QCOMPARE(text, QString());
            QVERIFY2(
                line.startsWith(QStringLiteral("debug: Invalid query time . queryStartTime: QDateTime(")),
                qPrintable(line));
            return;
        }
        QVERIFY2(line.startsWith(QStringLiteral("debug: *** startTime: QDateTime(")), qPrintable(line));
        QVERIFY2(line.contains(QStringLiteral(") endTime: QDateTime(")), qPrintable(line));
        const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
        QCOMPARE(object.keys(), QStringList({QStringLiteral("endTime"), QStringLiteral("startTime")}));
        const qint64 startOut = object.value(QStringLiteral("startTime")).toVariant().toLongLong();
        const qint64 endOut = object.value(QStringLiteral("endTime")).toVariant().toLongLong();
        QCOMPARE(text, QStringLiteral(R"({"endTime":%1,"startTime":%2})").arg(endOut).arg(startOut));
        QCOMPARE(utcText(endOut), end);
        if (start == QStringLiteral("now")) {
            QVERIFY(before <= startOut && startOut <= after);
        } else {
            QCOMPARE(utcText(startOut), start);
        }
    }
};

QTEST_GUILESS_MAIN(TestRequestTimes)

#include "tst_requesttimes.moc"
