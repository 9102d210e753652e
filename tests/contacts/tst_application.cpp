// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "admin1proxy.h"
#include "applicationonbus.h"

#include <QDBusConnectionInterface>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString outcome(const QString &action)
{
    return ask(action).ret();
}

bool isAlive(pid_t pid)
{
    // A zombie counts as dead.
    QFile status(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!status.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray line = status.readAll();
    return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}

} // namespace

/// The application as a process: its administration on the bus, no screen, no bus.
class TestApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { killApplication(); }

    void theAdministrationIsOnTheBus();
    void anInstalledOneHasNoAdministration();
    void itEndsWithItsBus();
    void itServesWithoutAScreen_data();
    void itServesWithoutAScreen();
    void itNeedsABus();
};

void TestApplication::theAdministrationIsOnTheBus()
{
    Admin1Proxy admin(ServiceName, AdminPath, QDBusConnection::sessionBus());
    QVERIFY(admin.LoadSample());
    QVERIFY(admin.Login(QStringLiteral("100002")));
    QVERIFY(!admin.Login(QStringLiteral("nobody")).value());
    admin.Logout().waitForFinished();
    QCOMPARE(outcome(QStringLiteral("Exit Conference")), QStringLiteral("User Not Login"));
    QVERIFY(admin.Login(QStringLiteral("100001")));
    QCOMPARE(outcome(QStringLiteral("Exit Conference")), QStringLiteral("No Conference"));
    QVERIFY(admin.SetConferenceState(QStringLiteral("880100001"), QStringLiteral("ended")));
    QCOMPARE(outcome(QStringLiteral("Join My Conference")), QStringLiteral("Not Found"));
    QVERIFY(admin.LoadSample());
    QCOMPARE(outcome(QStringLiteral("Join My Conference")), QStringLiteral("OK"));
    QVERIFY(admin.LoadSample());
}

void TestApplication::anInstalledOneHasNoAdministration()
{
    QFile installed(QStringLiteral(INSTALLED_SERVICE));
    QVERIFY(installed.open(QIODevice::ReadOnly));
    const QByteArray command = installed.readAll();
    QVERIFY(command.contains(" --service\n"));
    QProcess application;
    application.setProcessChannelMode(QProcess::ForwardedChannels);
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--service")});
    QTRY_COMPARE_WITH_TIMEOUT(qint64(servicePid()), application.processId(), PatientMsecs);
    Admin1Proxy admin(ServiceName, AdminPath, QDBusConnection::sessionBus());
    QDBusPendingReply<QString> snapshot = admin.Snapshot();
    snapshot.waitForFinished();
    QCOMPARE(snapshot.error().type(), QDBusError::UnknownObject);
    QDBusPendingReply<bool> reset = admin.Reset();
    reset.waitForFinished();
    QCOMPARE(reset.error().type(), QDBusError::UnknownObject);
    QCOMPARE(outcome(QStringLiteral("Is Conference Host")), QStringLiteral("No Conference"));
    application.terminate();
    QVERIFY(application.waitForFinished());
}

void TestApplication::itEndsWithItsBus()
{
    const QTemporaryDir folder;
    QProcess bus;
    bus.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    bus.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                                              QStringLiteral("--config-file=" PRIVATE_BUS_CONFIG)});
    QVERIFY(bus.waitForReadyRead(PatientMsecs));
    const QString address = QString::fromLatin1(bus.readLine()).trimmed();
    const QDBusConnection connection = QDBusConnection::connectToBus(address, QStringLiteral("other"));
    QVERIFY(connection.interface()->startService(ServiceName).isValid());
    const pid_t pid = static_cast<pid_t>(connection.interface()->servicePid(ServiceName).value());
    QVERIFY(isAlive(pid));
    bus.kill();
    QVERIFY(bus.waitForFinished());
    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(pid), PatientMsecs);
    QDBusConnection::disconnectFromBus(QStringLiteral("other"));
}

void TestApplication::itServesWithoutAScreen_data()
{
    QTest::addColumn<QString>("display");
    QTest::newRow("no display") << QString();
    QTest::newRow("a display that does not answer") << QStringLiteral(":4711");
}

void TestApplication::itServesWithoutAScreen()
{
    QFETCH(QString, display);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("DISPLAY"), display);
    QProcess application;
    application.setProcessEnvironment(environment);
    application.setProcessChannelMode(QProcess::ForwardedChannels);
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--service")});
    QTRY_COMPARE_WITH_TIMEOUT(qint64(servicePid()), application.processId(), PatientMsecs);
    QCOMPARE(outcome(QStringLiteral("Open Conference List")), QStringLiteral("Success"));
    application.terminate();
    QVERIFY(application.waitForFinished());
}

void TestApplication::itNeedsABus()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/nonexistent/bus"));
    QProcess application;
    application.setProcessEnvironment(environment);
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--service")});
    QVERIFY(application.waitForFinished(PatientMsecs));
    QCOMPARE(application.exitCode(), 2);
    QVERIFY(application.readAllStandardError().contains("There is no session bus"));
}

QTEST_GUILESS_MAIN(TestApplication)
#include "tst_application.moc"
