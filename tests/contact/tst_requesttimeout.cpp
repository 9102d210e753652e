// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "configmanager.h"
#include "contactutils.h"
#include "fakeprocesstable.h"
#include "logcapture.h"
#include "testcolumns.h"

#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

namespace {

void configure(const QString &timeOut, const QString &maxTimeOut)
{
    const QJsonObject contact{{QStringLiteral("TimeOut"), timeOut},
                              {QStringLiteral("MaxTimeOut"), maxTimeOut}};
    ConfigManager::instance()->fromJson(QJsonObject{{QStringLiteral("Contact"), contact}});
}

/// Lets no file be opened while it lives.
class NoFiles
{
public:
    NoFiles()
    {
        getrlimit(RLIMIT_NOFILE, &m_limit);
        rlimit none = m_limit;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoFiles() { setrlimit(RLIMIT_NOFILE, &m_limit); }
    Q_DISABLE_COPY(NoFiles)

private:
    rlimit m_limit{};
};

} // namespace

class TestRequestTimeout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Comes first, since the configuration cannot be reset.
    void nothingConfigured()
    {
        const QString miss = QStringLiteral("debug: Cannot find config:  \"/Contact/TimeOut\"");
        const QString maxMiss = QStringLiteral("debug: Cannot find config:  \"/Contact/MaxTimeOut\"");
        {
            const FakeProcessTable table(1);
            const LogCapture log;
            QCOMPARE(ContactUtils::timeoutInit(), 5000);
            QCOMPARE(log.lines(), QStringList{miss});
        }
        const FakeProcessTable table(0);
        const LogCapture log;
        QCOMPARE(ContactUtils::timeoutInit(), 15000);
        QCOMPARE(log.lines(), QStringList({miss, maxMiss}));
    }

    void runningMeansExactlyOneProcess_data()
    {
        addColumns<int, bool>({"matches", "isRunning"});
        QTest::newRow("none") << 0 << false;
        QTest::newRow("one") << 1 << true;
        QTest::newRow("two") << 2 << false;
        QTest::newRow("ten, which begins with a one") << 10 << false;
    }
    void runningMeansExactlyOneProcess()
    {
        QFETCH(int, matches);
        const FakeProcessTable table(matches);
        QTEST(ContactUtils::contactAppIsRunning(), "isRunning");
        QCOMPARE(table.runs(), 1);
    }

    void wordInAnArgumentCounts()
    {
        const FakeProcessTable table(QByteArray("user 80 1 0 09:00 ? 00:00:00 editor /home/user/meetlynx\n"
                                                "user 81 1 0 09:00 ? 00:00:00 /opt/meetlynx_old/run\n"));
        QVERIFY(ContactUtils::contactAppIsRunning());
    }

    void withoutPsNothingRuns()
    {
        const FakeProcessTable table(FakeProcessTable::WithoutPs);
        QVERIFY(!ContactUtils::contactAppIsRunning());
    }

    void withoutOutputNothingRuns()
    {
        const QTemporaryDir empty;
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", empty.path().toLocal8Bit()); // without wc there is not even a number
        const bool isRunning = ContactUtils::contactAppIsRunning();
        qputenv("PATH", path);
        QVERIFY(!isRunning);
    }

    void withoutAPipeNothingRuns()
    {
        const FakeProcessTable table(1);
        QVERIFY(ContactUtils::contactAppIsRunning());
        bool isRunning = true;
        {
            const NoFiles noFiles;
            isRunning = ContactUtils::contactAppIsRunning();
        }
        QVERIFY(!isRunning);
    }

    void hostThatIgnoresItsChildrenIsServedToo()
    {
        const FakeProcessTable table(1);
        const auto previous = std::signal(SIGCHLD, SIG_IGN);
        const bool isRunning = ContactUtils::contactAppIsRunning();
        std::signal(SIGCHLD, previous);
        QVERIFY(isRunning);
    }

    void timeOuts_data()
    {
        addColumns<QString, QString, int, int>({"timeOut", "maxTimeOut", "matches", "msecs"});
        const auto row = [](const char *name, const char *timeOut, const char *maxTimeOut, int matches,
                            int msecs) {
            QTest::newRow(name) << QString::fromUtf8(timeOut) << QString::fromUtf8(maxTimeOut) << matches
                                << msecs;
        };
        row("running: as configured", "800", "9000", 1, 800);
        row("running: longer than the maximum", "20000", "9000", 1, 20000);
        row("running: just long enough", "501", "9000", 1, 501);
        row("running: too short by one", "500", "9000", 1, 5000);
        row("running: too short", "300", "9000", 1, 5000);
        row("running: negative", "-800", "9000", 1, 5000);
        row("running: no number", "soon", "9000", 1, 5000);
        row("running: number with a unit", "800ms", "9000", 1, 5000);
        row("running: with a fraction", "800.5", "9000", 1, 5000);
        row("running: beyond 32 bits", "99999999999", "9000", 1, 5000);
        row("running: empty", "", "", 1, 5000);
        row("not running: the maximum", "8000", "9000", 0, 9000);
        row("not running: maximum above by one", "8000", "8001", 0, 8001);
        row("not running: maximum equal", "8000", "8000", 0, 15000);
        row("not running: maximum below", "8000", "6000", 0, 15000);
        row("not running: maximum below the default time-out", "300", "4000", 0, 15000);
        row("not running: maximum above the default time-out", "300", "6000", 0, 6000);
        row("not running: maximum is no number", "8000", "long", 0, 15000);
        row("not running: time-out above the replaced maximum", "20000", "6000", 0, 15000);
        row("two are running: the maximum", "8000", "9000", 2, 9000);
    }
    void timeOuts()
    {
        QFETCH(QString, timeOut);
        QFETCH(QString, maxTimeOut);
        QFETCH(int, matches);
        configure(timeOut, maxTimeOut);
        const FakeProcessTable table(matches);
        const LogCapture log;
        QTEST(ContactUtils::timeoutInit(), "msecs");
        QCOMPARE(table.runs(), 1);
        QCOMPARE(log.lines(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestRequestTimeout)

#include "tst_requesttimeout.moc"
