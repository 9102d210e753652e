// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminders/walltimer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QtTest>

#include <ctime>

/// The timer on the wall clock.
class TestWallTimer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMomentOfTheCalendarIsWaitedFor();
    void aClockThatIsNotSetIsNeverDue();
};

void TestWallTimer::aMomentOfTheCalendarIsWaitedFor()
{
    WallTimer timer;
    QSignalSpy timeout(&timer, &WallTimer::timeout);
    QElapsedTimer elapsed;
    elapsed.start();
    timer.start(30);
    QVERIFY(timeout.wait());
    QVERIFY(elapsed.elapsed() >= 30);
    timer.start(3600 * 1000);
    QVERIFY(!timeout.wait(50));
    timer.start(-5); // already past
    QVERIFY(timeout.wait());
    QVERIFY(!timeout.wait(50)); // once
}

void TestWallTimer::aClockThatIsNotSetIsNeverDue()
{
    // The kernel's view of this process's timers on CLOCK_REALTIME.
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

QTEST_GUILESS_MAIN(TestWallTimer)
#include "tst_walltimer.moc"
