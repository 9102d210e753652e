// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launcherprogram.h"
#include "notificationserver.h"

#include <QtDBus>
#include <QtTest>

namespace {

constexpr int StartMsecs = 60000;

/// Returns the path of an installed program; empty if it is not installed.
QString program(const char *name)
{
    return QStandardPaths::findExecutable(QLatin1String(name));
}

/// Ends the process on destruction.
class Process : public QProcess
{
public:
    ~Process() override
    {
        terminate();
        if (!waitForFinished(5000)) {
            kill();
            waitForFinished();
        }
    }
};

/// A virtual X server.
class Display
{
public:
    bool start()
    {
        m_server.start(program("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp")});
        if (!m_server.waitForReadyRead(StartMsecs)) {
            return false;
        }
        m_name = QLatin1Char(':') + QString::fromLatin1(m_server.readLine().trimmed());
        return m_name.size() > 1;
    }
    QString name() const { return m_name; }

private:
    Process m_server;
    QString m_name;
};

} // namespace

/// The real KRunner offers the line and runs it, using the packages' plugin file.
class TestKRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sentenceIsOfferedAndRun();
};

void TestKRunner::sentenceIsOfferedAndRun()
{
    for (const char *name : {"krunner", "Xvfb", "xdotool"}) {
        if (program(name).isEmpty()) {
            const QString why =
                QStringLiteral("%1 is not installed; the Debian packages are plasma-workspace, "
                               "xvfb and xdotool.")
                    .arg(QLatin1String(name));
            // QSKIP() needs a second argument with clang++.
            QTest::qSkip(qPrintable(why), __FILE__, __LINE__);
            return;
        }
    }
    const QTemporaryDir data;
    const QString file = QStringLiteral("com.kelvane.speakmate.devhost.desktop");
    QVERIFY(QDir(data.path()).mkpath(QStringLiteral("krunner/dbusplugins")));
    QVERIFY(QFile::copy(QStringLiteral(CONTACT_SOURCE_DIR "/data/launcher/") + file,
                        data.filePath(QStringLiteral("krunner/dbusplugins/") + file)));
    Display display;
    QVERIFY(display.start());
    const NotificationServer notifications;
    const LauncherProgram launcher;
    QTRY_VERIFY(LauncherProgram::isThere());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display.name());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    environment.insert(QStringLiteral("XDG_DATA_DIRS"), data.path() + QStringLiteral(":/usr/share"));
    environment.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("KDE"));
    Process krunner;
    krunner.setProcessEnvironment(environment);
    krunner.setStandardOutputFile(QProcess::nullDevice());
    krunner.setStandardErrorFile(QStringLiteral(CONTACT_BINARY_DIR "/krunner.log"));
    krunner.start(program("krunner"), {QStringLiteral("--daemon")});
    const auto bus = QDBusConnection::sessionBus();
    QTRY_VERIFY_WITH_TIMEOUT(bus.interface()->isServiceRegistered(QStringLiteral("org.kde.krunner")),
                             StartMsecs);

    QDBusMessage query =
        QDBusMessage::createMethodCall(QStringLiteral("org.kde.krunner"), QStringLiteral("/App"),
                                       QStringLiteral("org.kde.krunner.App"), QStringLiteral("query"));
    query << QStringLiteral("明天下午三点和张伟开会");
    const QDBusMessage shown = bus.call(query, QDBus::Block, StartMsecs);
    QVERIFY2(shown.type() == QDBusMessage::ReplyMessage, qPrintable(shown.errorMessage()));

    // Return does nothing until the line is there, so press it until it works.
    const auto pressReturn = [&environment] {
        Process key;
        key.setProcessEnvironment(environment);
        key.start(program("xdotool"), {QStringLiteral("key"), QStringLiteral("Return")});
        return key.waitForFinished() && key.exitCode() == 0;
    };
    QElapsedTimer timer;
    timer.start();
    while (notifications.shown.isEmpty() && timer.elapsed() < StartMsecs) {
        QVERIFY(pressReturn());
        QTest::qWait(500);
    }
    QVERIFY(!notifications.shown.isEmpty());
    QCOMPARE(notifications.shown.first().summary, QStringLiteral("预约 11月22日 15:00 与张伟的视频会议"));
    QCOMPARE(notifications.shown.first().body,
             QStringLiteral("张伟")); // the test plugin echoes the first slot
}

QTEST_GUILESS_MAIN(TestKRunner)
#include "tst_krunner.moc"
