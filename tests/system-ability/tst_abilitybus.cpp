// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scriptedrequest.h"

#include "busforonequestion.h"
#include "logcapture.h"
#include "silentsocket.h"
#include "testswitch.h"

#include <kelvane/abilitycodes.h>

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>

namespace {

QStringList busArguments(const QString &address)
{
    return {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
            QStringLiteral("--config-file=" EMPTY_BUS_CONFIG), QStringLiteral("--address=") + address};
}

} // namespace

/// The ability library on a bus that is gone, restarts or does not answer.
class TestAbilityBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBusThatIsGoneIsToldAtOnce();
    void theBusMayRestart();
    void aBusThatDoesNotAnswerKeepsNobody_data();
    void aBusThatDoesNotAnswerKeepsNobody();
    void aGoodAddressThatComesLaterIsUsed_data();
    void aGoodAddressThatComesLaterIsUsed();
};

void TestAbilityBus::aBusThatIsGoneIsToldAtOnce()
{
    // In another process, since this one is connected to its bus.
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/nonexistent/bus"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ONE_REQUEST), QStringList());
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.readAllStandardOutput().trimmed().toInt(), int(AbilityCode::NoBus));
}

void TestAbilityBus::theBusMayRestart()
{
    const QTemporaryDir folder;
    const QByteArray address = "unix:path=" + folder.filePath(QStringLiteral("bus")).toLocal8Bit();
    const QByteArray former = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QStringList arguments = busArguments(QString::fromLocal8Bit(address));
    const LogCapture log(LogCapture::Unexpected::Passes);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QProcess oneClient;
    oneClient.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    {
        const Running bus(QStringLiteral("dbus-daemon"), arguments);
        QVERIFY(bus.isReady());
        const Running application(scripted());
        QVERIFY(application.isReady());
        oneClient.start(QStringLiteral(ONE_REQUEST), {QStringLiteral("again")});
        QVERIFY(oneClient.waitForReadyRead(10000));
        QCOMPARE(oneClient.readLine().trimmed(), QByteArray("0"));
    }
    oneClient.write("\n");
    QVERIFY(oneClient.waitForReadyRead(10000));
    const int withoutBus = oneClient.readLine().trimmed().toInt();
    QVERIFY2(withoutBus == AbilityCode::NoBus || withoutBus == AbilityCode::Died,
             qPrintable(QString::number(withoutBus)));
    {
        const Running bus(QStringLiteral("dbus-daemon"), arguments);
        QVERIFY(bus.isReady());
        const Running application(scripted());
        QVERIFY(application.isReady());
        oneClient.write("\n");
        QVERIFY(oneClient.waitForReadyRead(10000));
        QCOMPARE(oneClient.readLine().trimmed(), QByteArray("0"));
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", former);
    oneClient.closeWriteChannel();
    QVERIFY(oneClient.waitForFinished(10000));
    QCOMPARE(oneClient.exitStatus(), QProcess::NormalExit);
}

void TestAbilityBus::aBusThatDoesNotAnswerKeepsNobody_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("a bus that is stopped") << "stopped";
    QTest::newRow("a bus that is stopped right after it was asked") << "stopped later";
    QTest::newRow("a socket that takes connections and says nothing") << "silent";
}

void TestAbilityBus::aBusThatDoesNotAnswerKeepsNobody()
{
    QFETCH(QString, kind);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bus"));
    const QString address = QStringLiteral("unix:path=") + path;
    std::unique_ptr<Running> bus;
    std::unique_ptr<SilentSocket> silent;
    std::unique_ptr<BusForOneQuestion> forOne;
    if (kind == QLatin1String("stopped later")) {
        forOne = std::make_unique<BusForOneQuestion>(path);
        QVERIFY(forOne->isListening());
    } else if (kind == QLatin1String("stopped")) {
        bus = std::make_unique<Running>(QStringLiteral("dbus-daemon"), busArguments(address));
        QVERIFY(bus->isReady());
        bus->signal(SIGSTOP);
    } else {
        silent = std::make_unique<SilentSocket>(path);
        QVERIFY(silent->isListening());
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
    environment.insert(QStringLiteral("ONE_REQUEST_TIMEOUT"), QStringLiteral("500"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ONE_REQUEST), QStringList());
    const bool hasEnded = process.waitForFinished(10000);
    process.kill();
    process.waitForFinished();
    QVERIFY(hasEnded);
    QVERIFY(forOne == nullptr || forOne->wasAsked());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.readAllStandardOutput().trimmed().toInt(), int(AbilityCode::TimedOut));
}

void TestAbilityBus::aGoodAddressThatComesLaterIsUsed_data()
{
    addSwitch("answersOneQuestion", "after a silent socket",
              "after a bus that stopped right after it was asked");
}

void TestAbilityBus::aGoodAddressThatComesLaterIsUsed()
{
    QFETCH(bool, answersOneQuestion);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bus"));
    std::unique_ptr<SilentSocket> silent;
    std::unique_ptr<BusForOneQuestion> forOne;
    if (answersOneQuestion) {
        forOne = std::make_unique<BusForOneQuestion>(path);
    } else {
        silent = std::make_unique<SilentSocket>(path);
    }
    QVERIFY(answersOneQuestion ? forOne->isListening() : silent->isListening());
    const Running application(scripted());
    QVERIFY(application.isReady());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("GOOD_ADDRESS"),
                       environment.value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS")));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=") + path);
    environment.insert(QStringLiteral("ONE_REQUEST_TIMEOUT"), QStringLiteral("500"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ONE_REQUEST), {QStringLiteral("again")});
    QVERIFY(process.waitForReadyRead(10000));
    QCOMPARE(process.readLine().trimmed().toInt(), int(AbilityCode::TimedOut));
    process.write("\n");
    QVERIFY(process.waitForReadyRead(10000));
    QCOMPARE(process.readLine().trimmed(), QByteArray("0"));
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(10000));
}

QTEST_GUILESS_MAIN(TestAbilityBus)
#include "tst_abilitybus.moc"
