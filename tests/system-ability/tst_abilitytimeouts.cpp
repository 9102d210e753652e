// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scriptedrequest.h"

#include "logcapture.h"
#include "testcolumns.h"

#include <kelvane/abilitycodes.h>

#include <QtTest>

#include <csignal>
#include <ctime>
#include <limits>

/// How long a request waits, and what is logged about one performed after its time-out.
class TestAbilityTimeOuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTimeOutIsKept_data();
    void theTimeOutIsKept();
    void aLateAnswerIsDropped();
    void aStoppedApplicationTimesOut();
    void aNonsensicalTimeOutIsTheDefault();
    void everyTimeOutIsCarried_data();
    void everyTimeOutIsCarried();
    void theDeadlineTravelsWithTheRequest();
    void whatWasPerformedAfterAllIsTold();
    void whatWasNotPerformedIsNotTold();
    void whoCannotTellIsNotAskedForEver_data();
    void whoCannotTellIsNotAskedForEver();
};

void TestAbilityTimeOuts::theTimeOutIsKept_data()
{
    QTest::addColumn<int>("timeoutMsecs");
    QTest::newRow("100 ms") << 100;
    QTest::newRow("400 ms") << 400;
    QTest::newRow("2 s") << 2000;
}

void TestAbilityTimeOuts::theTimeOutIsKept()
{
    QFETCH(int, timeoutMsecs);
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    // Never early. A busy machine may wake us late, but at least once within 5 percent plus 20 ms.
    qint64 soonest = std::numeric_limits<qint64>::max();
    for (int attempt = 0; attempt < 5; ++attempt) {
        const Asked asked = ask(QStringLiteral("Never"), {}, timeoutMsecs);
        QCOMPARE(asked.code, int(AbilityCode::TimedOut));
        QCOMPARE(asked.answer, QStringLiteral("untouched"));
        QVERIFY2(asked.msecs >= timeoutMsecs - 1, qPrintable(QString::number(asked.msecs)));
        soonest = qMin(soonest, asked.msecs);
    }
    QVERIFY2(soonest <= timeoutMsecs + timeoutMsecs / 20 + 20, qPrintable(QString::number(soonest)));
}

void TestAbilityTimeOuts::aLateAnswerIsDropped()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    QCOMPARE(ask(QStringLiteral("Late"), QStringLiteral("300"), 100).code, int(AbilityCode::TimedOut));
    // Still waits when the first request's late answer comes, and must get its own.
    const Asked next = ask(QStringLiteral("Late"), QStringLiteral("600"));
    QCOMPARE(next.code, 0);
    QVERIFY2(next.msecs >= 600, qPrintable(QString::number(next.msecs)));
    QCOMPARE(ask(QStringLiteral("Echo"), QStringLiteral("mine")).answer, QStringLiteral("mine"));
}

void TestAbilityTimeOuts::aStoppedApplicationTimesOut()
{
    Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    application.signal(SIGSTOP);
    const Asked asked = ask(QStringLiteral("Echo"), {}, 400);
    application.signal(SIGCONT);
    QCOMPARE(asked.code, int(AbilityCode::TimedOut));
    QVERIFY2(asked.msecs >= 399 && asked.msecs < 2000, qPrintable(QString::number(asked.msecs)));
    QCOMPARE(ask(QStringLiteral("Echo"), QStringLiteral("again")).answer, QStringLiteral("again"));
}

void TestAbilityTimeOuts::aNonsensicalTimeOutIsTheDefault()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    for (const int timeout : {0, -1}) {
        const Asked asked = ask(QStringLiteral("Late"), QStringLiteral("100"), timeout);
        QCOMPARE(asked.code, 0);
    }
}

void TestAbilityTimeOuts::everyTimeOutIsCarried_data()
{
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    QTest::addColumn<int>("timeoutMsecs");
    for (const int msecs : {smallest, smallest + 1, -1001, -1, 0, 501, largest - 1001, largest - 1000,
                            largest - 999, largest - 1, largest}) {
        QTest::addRow("%d", msecs) << msecs;
    }
}

void TestAbilityTimeOuts::everyTimeOutIsCarried()
{
    QFETCH(int, timeoutMsecs);
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log;
    const Asked asked = ask(QStringLiteral("Echo"), QStringLiteral("here"), timeoutMsecs);
    QCOMPARE(asked.code, 0);
    QCOMPARE(asked.answer, QStringLiteral("here"));
}

void TestAbilityTimeOuts::theDeadlineTravelsWithTheRequest()
{
    const auto monotonicMsecs = [] {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        return qint64(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
    };
    const Running application(scripted());
    QVERIFY(application.isReady());
    for (const int timeoutMsecs : {500, 5000, std::numeric_limits<int>::max()}) {
        const qint64 before = monotonicMsecs();
        const Asked asked = ask(QStringLiteral("Deadline"), {}, timeoutMsecs);
        QCOMPARE(asked.code, 0);
        const qint64 deadline = asked.answer.toLongLong();
        // Shortly before the caller stops waiting.
        QVERIFY(deadline < monotonicMsecs() + timeoutMsecs);
        QVERIFY(deadline >= before + timeoutMsecs - qMin(50, timeoutMsecs / 20) - 1);
    }
}

void TestAbilityTimeOuts::whatWasPerformedAfterAllIsTold()
{
    const QString told = QStringLiteral("{\"action\":\"Late\",\"performedAfterAll\":true}");
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    QCOMPARE(ask(QStringLiteral("Late"), QStringLiteral("300"), 100).code, int(AbilityCode::TimedOut));
    QVERIFY(!log.contains(QtWarningMsg, told));
    QCOMPARE(ask(QStringLiteral("Echo")).code, 0);
    QVERIFY(log.contains(QtWarningMsg, told));
    QCOMPARE(log.find(told).category, QByteArray("kelvane.ability"));
    QCOMPARE(ask(QStringLiteral("Echo")).code, 0);
    QCOMPARE(log.texts(QtWarningMsg).count(told), 1);
}

void TestAbilityTimeOuts::whatWasNotPerformedIsNotTold()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    QCOMPARE(ask(QStringLiteral("Never"), {}, 100).code, int(AbilityCode::TimedOut));
    QCOMPARE(ask(QStringLiteral("Echo")).code, 0);
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
}

void TestAbilityTimeOuts::whoCannotTellIsNotAskedForEver_data()
{
    addColumns<QString, QString>({"error", "timesAsked"});
    QTest::newRow("an application that does not know the method")
        << "org.freedesktop.DBus.Error.UnknownMethod"
        << "1";
    QTest::newRow("an application that fails") << "org.example.Error.NotToday"
                                               << "10";
}

void TestAbilityTimeOuts::whoCannotTellIsNotAskedForEver()
{
    QFETCH(const QString, error);
    QFETCH(const QString, timesAsked);
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    QCOMPARE(ask(QStringLiteral("Refuse"), error).code, 0);
    QCOMPARE(ask(QStringLiteral("Never"), {}, 100).code, int(AbilityCode::TimedOut));
    for (int request = 0; request < 20; ++request) {
        QCOMPARE(ask(QStringLiteral("Echo")).code, 0);
    }
    QCOMPARE(ask(QStringLiteral("Asked")).answer, timesAsked);
}

QTEST_GUILESS_MAIN(TestAbilityTimeOuts)
#include "tst_abilitytimeouts.moc"
