// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "busforonequestion.h"
#include "logcapture.h"
#include "silentsocket.h"
#include "testcolumns.h"

#include <kelvane/abilitycodes.h>
#include <kelvane/kelvaneabilitymanager.h>

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <ctime>
#include <limits>
#include <memory>
#include <thread>
#include <vector>

namespace {

struct Asked
{
    int code;
    QString answer;
    qint64 msecs;
};

Asked ask(const QString &action, const QString &parameters = {}, int timeoutMsecs = 10000)
{
    const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
    ability->setTimeout(timeoutMsecs);
    Asked asked{1, QStringLiteral("untouched"), 0};
    QElapsedTimer timer;
    timer.start();
    asked.code = ability->request(action, parameters, asked.answer);
    asked.msecs = timer.elapsed();
    return asked;
}

/// Runs a process until the end of its scope, and waits until it has said something.
class Running
{
public:
    Running(const QString &program, const QStringList &arguments = {})
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(program, arguments);
        m_isReady = m_process.waitForReadyRead(10000);
    }
    ~Running()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    bool isReady() const { return m_isReady; }
    void signal(int number) { ::kill(static_cast<pid_t>(m_process.processId()), number); }

private:
    QProcess m_process;
    bool m_isReady = false;
};

QString scripted()
{
    return QStringLiteral(SCRIPTED_APPLICATION);
}

} // namespace

/// The ability library beside an application that misbehaves, on a bus that cannot start one.
class TestContactAbility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void failures_data();
    void failures();
    void anAnswerIsHandedOver();
    void thePasswordIsNotTraced();
    void aSlowAnswerInTimeIsAnAnswer();
    void theTimeOutIsKept_data();
    void theTimeOutIsKept();
    void aLateAnswerIsDropped();
    void aStoppedApplicationTimesOut();
    void aMissingApplicationIsToldAtOnce();
    void aBusThatIsGoneIsToldAtOnce();
    void theBusMayRestart();
    void eventsWaitUntilTheRequestIsOver();
    void threadsDoNotWaitForEachOther();
    void aNonsensicalTimeOutIsTheDefault();
    void everyTimeOutIsCarried_data();
    void everyTimeOutIsCarried();
    void aThousandRequestsMayWait();
    void aBusThatDoesNotAnswerKeepsNobody_data();
    void aBusThatDoesNotAnswerKeepsNobody();
    void aGoodAddressThatComesLaterIsUsed_data();
    void aGoodAddressThatComesLaterIsUsed();
    void theDeadlineTravelsWithTheRequest();
    void whatWasPerformedAfterAllIsTold();
    void whatWasNotPerformedIsNotTold();
    void whoCannotTellIsNotAskedForEver_data();
    void whoCannotTellIsNotAskedForEver();
};

void TestContactAbility::failures_data()
{
    addColumns<QString, int, QString, QString>({"action", "code", "error", "parameters"});
    QTest::newRow("an error") << QStringLiteral("Fail") << int(AbilityCode::Refused)
                              << QStringLiteral("org.example.Error.NotToday not today") << QString();
    for (const char *signature : {"i", "", "is"}) {
        QTest::addRow("an answer of the type \"%s\"", signature)
            << QStringLiteral("Malform") << int(AbilityCode::MalformedAnswer)
            << QStringLiteral("org.freedesktop.DBus.Error.InvalidSignature ")
            << QString::fromLatin1(signature);
    }
    for (const char *signature : {"ss", "si", "sss"}) {
        QTest::addRow("a text and more, \"%s\"", signature)
            << QStringLiteral("Malform") << int(AbilityCode::MalformedAnswer)
            << QStringLiteral("signature %1").arg(QLatin1String(signature)) << QString::fromLatin1(signature);
    }
    QTest::newRow("a death during the call")
        << QStringLiteral("Die") << int(AbilityCode::Died)
        << QStringLiteral("org.freedesktop.DBus.Error.NoReply ") << QString();
}

void TestContactAbility::failures()
{
    QFETCH(QString, action);
    QFETCH(int, code);
    QFETCH(QString, error);
    QFETCH(QString, parameters);
    const Running application(scripted());
    QVERIFY(application.isReady());
    LogCapture log(LogCapture::Unexpected::Passes);
    const Asked asked = ask(action, parameters);
    QCOMPARE(asked.code, code);
    QVERIFY(asked.code >= -9999 && asked.code <= -1);
    QCOMPARE(asked.answer, QStringLiteral("untouched"));
    QVERIFY(asked.msecs < 5000);
    const QStringList warnings = log.texts(QtWarningMsg);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.at(0).startsWith(
                 QStringLiteral("The request %1 failed with %2 %3").arg(action).arg(code).arg(error)),
             qPrintable(warnings.at(0)));
}

void TestContactAbility::anAnswerIsHandedOver()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log;
    const QString text = QStringLiteral("{\"ret\":\"OK\",\"title\":\"周会\\n😀\"}");
    const Asked asked = ask(QStringLiteral("Echo"), text);
    QCOMPARE(asked.code, 0);
    QCOMPARE(asked.answer, text);
}

void TestContactAbility::thePasswordIsNotTraced()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    QLoggingCategory::setFilterRules(QStringLiteral("kelvane.ability.debug=true"));
    const LogCapture log;
    const QString text = QStringLiteral(R"({"conferenceId":"880","password":"246810"})");
    // What it answers is traced as it is; this one does not repeat the question.
    QCOMPARE(ask(QStringLiteral("Late"), text).code, 0);
    QLoggingCategory::setFilterRules(QString());
    const QString traced = log.lines().join(QLatin1Char('\n'));
    QVERIFY2(traced.contains(QStringLiteral("880")), qPrintable(traced));
    QVERIFY2(!traced.contains(QStringLiteral("246810")), qPrintable(traced));
}

void TestContactAbility::aSlowAnswerInTimeIsAnAnswer()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    const Asked asked = ask(QStringLiteral("Late"), QStringLiteral("300"));
    QCOMPARE(asked.code, 0);
    QCOMPARE(asked.answer, QStringLiteral("late"));
    QVERIFY(asked.msecs >= 300);
}

void TestContactAbility::theTimeOutIsKept_data()
{
    QTest::addColumn<int>("timeoutMsecs");
    QTest::newRow("100 ms") << 100;
    QTest::newRow("400 ms") << 400;
    QTest::newRow("2 s") << 2000;
}

void TestContactAbility::theTimeOutIsKept()
{
    QFETCH(int, timeoutMsecs);
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    // A busy machine may wake anybody late: never early, and at least once within 5 percent and 20 ms.
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

void TestContactAbility::aLateAnswerIsDropped()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    QCOMPARE(ask(QStringLiteral("Late"), QStringLiteral("300"), 100).code, int(AbilityCode::TimedOut));
    // Is under way when the other one's answer comes, and gets its own.
    const Asked next = ask(QStringLiteral("Late"), QStringLiteral("600"));
    QCOMPARE(next.code, 0);
    QVERIFY2(next.msecs >= 600, qPrintable(QString::number(next.msecs)));
    QCOMPARE(ask(QStringLiteral("Echo"), QStringLiteral("mine")).answer, QStringLiteral("mine"));
}

void TestContactAbility::aStoppedApplicationTimesOut()
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

void TestContactAbility::aMissingApplicationIsToldAtOnce()
{
    const LogCapture log(LogCapture::Unexpected::Passes);
    const Asked asked = ask(QStringLiteral("Echo"));
    QCOMPARE(asked.code, int(AbilityCode::NoService));
    QVERIFY(asked.msecs < 5000);
}

void TestContactAbility::aBusThatIsGoneIsToldAtOnce()
{
    // A process of its own, because this one has its bus.
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/nonexistent/bus"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ONE_REQUEST), QStringList());
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.readAllStandardOutput().trimmed().toInt(), int(AbilityCode::NoBus));
}

void TestContactAbility::theBusMayRestart()
{
    const QTemporaryDir folder;
    const QByteArray address = "unix:path=" + folder.filePath(QStringLiteral("bus")).toLocal8Bit();
    const QByteArray former = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QStringList busArguments{QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                                   QStringLiteral("--config-file=" EMPTY_BUS_CONFIG),
                                   QStringLiteral("--address=") + QString::fromLocal8Bit(address)};
    const LogCapture log(LogCapture::Unexpected::Passes);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QProcess oneClient;
    oneClient.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    {
        const Running bus(QStringLiteral("dbus-daemon"), busArguments);
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
        const Running bus(QStringLiteral("dbus-daemon"), busArguments);
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

void TestContactAbility::eventsWaitUntilTheRequestIsOver()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    bool delivered = false;
    QTimer::singleShot(0, this, [&delivered] { delivered = true; });
    QMetaObject::invokeMethod(
        this, [&delivered] { delivered = true; }, Qt::QueuedConnection);
    QCOMPARE(ask(QStringLiteral("Late"), QStringLiteral("100")).code, 0);
    QVERIFY(!delivered);
    QTRY_VERIFY(delivered);
}

void TestContactAbility::threadsDoNotWaitForEachOther()
{
    constexpr int threadCount = 8;
    const Running application(scripted());
    QVERIFY(application.isReady());
    QElapsedTimer timer;
    timer.start();
    std::vector<int> codes(threadCount, 1);
    std::vector<std::thread> threads;
    for (int &code : codes) {
        threads.emplace_back([&code] { code = ask(QStringLiteral("Late"), QStringLiteral("500")).code; });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(codes, std::vector<int>(threadCount, 0));
    QVERIFY2(timer.elapsed() < threadCount * 500, qPrintable(QString::number(timer.elapsed())));
}

void TestContactAbility::aNonsensicalTimeOutIsTheDefault()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    for (const int timeout : {0, -1}) {
        const Asked asked = ask(QStringLiteral("Late"), QStringLiteral("100"), timeout);
        QCOMPARE(asked.code, 0);
    }
}

void TestContactAbility::everyTimeOutIsCarried_data()
{
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    QTest::addColumn<int>("timeoutMsecs");
    for (const int msecs : {smallest, smallest + 1, -1001, -1, 0, 501, largest - 1001, largest - 1000,
                            largest - 999, largest - 1, largest}) {
        QTest::addRow("%d", msecs) << msecs;
    }
}

void TestContactAbility::everyTimeOutIsCarried()
{
    QFETCH(int, timeoutMsecs);
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log;
    const Asked asked = ask(QStringLiteral("Echo"), QStringLiteral("here"), timeoutMsecs);
    QCOMPARE(asked.code, 0);
    QCOMPARE(asked.answer, QStringLiteral("here"));
}

void TestContactAbility::aThousandRequestsMayWait()
{
    constexpr int requestCount = 1000;
    const Running application(scripted());
    QVERIFY(application.isReady());
    const QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("com.kelvane.meetlynx"), QStringLiteral("/com/kelvane/meetlynx"),
        QStringLiteral("com.kelvane.meetlynx.Contact1"), QStringLiteral("Request"));
    message.setArguments({QStringLiteral("Never"), QString(), qint64(0), QString()});
    std::vector<QDBusPendingCall> calls;
    for (int i = 0; i < requestCount; ++i) {
        calls.push_back(bus.asyncCall(message, 60000));
    }
    // Comes after them all on the same connection.
    message.setArguments({QStringLiteral("Echo"), QStringLiteral("last"), qint64(0), QString()});
    QCOMPARE(bus.call(message, QDBus::Block, 10000).type(), QDBusMessage::ReplyMessage);
    const auto failed = std::count_if(calls.cbegin(), calls.cend(),
                                      [](const QDBusPendingCall &call) { return call.isFinished(); });
    QCOMPARE(int(failed), 0);
}

void TestContactAbility::aBusThatDoesNotAnswerKeepsNobody_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("a bus that is stopped") << "stopped";
    QTest::newRow("a bus that is stopped right after it was asked") << "stopped later";
    QTest::newRow("a socket that takes connections and says nothing") << "silent";
}

void TestContactAbility::aBusThatDoesNotAnswerKeepsNobody()
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
        bus = std::make_unique<Running>(QStringLiteral("dbus-daemon"),
                                        QStringList{QStringLiteral("--nofork"),
                                                    QStringLiteral("--print-address"),
                                                    QStringLiteral("--config-file=" EMPTY_BUS_CONFIG),
                                                    QStringLiteral("--address=") + address});
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

void TestContactAbility::aGoodAddressThatComesLaterIsUsed_data()
{
    QTest::addColumn<bool>("answersOneQuestion");
    QTest::newRow("after a silent socket") << false;
    QTest::newRow("after a bus that stopped right after it was asked") << true;
}

void TestContactAbility::aGoodAddressThatComesLaterIsUsed()
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

void TestContactAbility::theDeadlineTravelsWithTheRequest()
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
        // Before the caller stops waiting, and not by much.
        QVERIFY(deadline < monotonicMsecs() + timeoutMsecs);
        QVERIFY(deadline >= before + timeoutMsecs - qMin(50, timeoutMsecs / 20) - 1);
    }
}

void TestContactAbility::whatWasPerformedAfterAllIsTold()
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

void TestContactAbility::whatWasNotPerformedIsNotTold()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log(LogCapture::Unexpected::Passes);
    QCOMPARE(ask(QStringLiteral("Never"), {}, 100).code, int(AbilityCode::TimedOut));
    QCOMPARE(ask(QStringLiteral("Echo")).code, 0);
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
}

void TestContactAbility::whoCannotTellIsNotAskedForEver_data()
{
    addColumns<QString, QString>({"error", "timesAsked"});
    QTest::newRow("an application that does not know the method")
        << "org.freedesktop.DBus.Error.UnknownMethod"
        << "1";
    QTest::newRow("an application that fails") << "org.example.Error.NotToday"
                                               << "10";
}

void TestContactAbility::whoCannotTellIsNotAskedForEver()
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

QTEST_GUILESS_MAIN(TestContactAbility)
#include "tst_contactability.moc"
