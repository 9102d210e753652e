// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "admin1proxy.h"
#include "notificationserver.h"

#include "book/contactsbook.h"
#include "core/conference.h"

#include <kelvane/kelvaneabilitymanager.h>

#include <QDBusConnectionInterface>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <csignal>
#include <memory>
#include <thread>

namespace {

const auto ServiceName = QStringLiteral("com.kelvane.meetlynx");
const auto AdminPath = QStringLiteral("/com/kelvane/meetlynx/admin");

QJsonObject ask(const QString &action, const QJsonObject &parameters, int &code)
{
    const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
    ability->setTimeout(15000);
    const QString text = QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact));
    QString answer;
    code = ability->request(action, text, answer);
    return QJsonDocument::fromJson(answer.toUtf8()).object();
}

QString outcome(const QString &action)
{
    int code = 1;
    return ask(action, {}, code).value(QLatin1String("ret")).toString();
}

pid_t servicePid()
{
    const QDBusReply<uint> pid = QDBusConnection::sessionBus().interface()->servicePid(ServiceName);
    return pid.isValid() ? static_cast<pid_t>(pid.value()) : 0;
}

bool isAlive(pid_t pid)
{
    // A process that nobody has collected yet is dead all the same.
    QFile status(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!status.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray line = status.readAll();
    return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}

void stopService()
{
    const pid_t pid = servicePid();
    if (pid != 0) {
        kill(pid, SIGKILL);
    }
    QTRY_VERIFY(servicePid() == 0);
}

/// What the session starts the application with.
QStringList autostartArguments()
{
    const QSettings entry(QStringLiteral(CONTACT_SOURCE_DIR "/data/autostart/com.kelvane.meetlynx.desktop"),
                          QSettings::IniFormat);
    QStringList words = entry.value(QStringLiteral("Desktop Entry/Exec")).toString().split(QLatin1Char(' '));
    words.removeFirst();
    return words;
}

} // namespace

/// The application's name on the bus, with what it is asked.
class RunningApplication : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.kelvane.meetlynx.Contact1")

public:
    RunningApplication()
        : m_connection(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("running")))
    {
        m_isThere = m_connection.registerObject(QStringLiteral("/com/kelvane/meetlynx"), this,
                                                QDBusConnection::ExportScriptableSlots) &&
                    m_connection.registerService(ServiceName);
    }
    ~RunningApplication() override
    {
        m_connection.unregisterService(ServiceName);
        QDBusConnection::disconnectFromBus(QStringLiteral("running"));
    }
    bool isThere() const { return m_isThere; }

    QStringList asked;
    QStringList parametersAsked;

public Q_SLOTS:
    Q_SCRIPTABLE QString Request(const QString &action, const QString &parameters, qlonglong, const QString &)
    {
        asked.append(action);
        parametersAsked.append(parameters);
        return QStringLiteral("{}");
    }

private:
    QDBusConnection m_connection;
    bool m_isThere = false;
};

/// The application as a process: started by the bus, killed at any moment, with and without a screen.
class TestApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { stopService(); }

    void whatWasAnsweredSurvivesBeingKilled();
    void theAdministrationIsOnTheBus();
    void anInstalledOneHasNoAdministration();
    void itEndsWithItsBus();
    void itServesWithoutAScreen_data();
    void itServesWithoutAScreen();
    void aSecondStartEndsAtOnce();
    void itTellsWhatItIs();
    void itRemindsAlsoWithoutAWindow();
    void aSessionStartsItToRemind();
    void aSessionStartsItOnlyToRemind_data();
    void aSessionStartsItOnlyToRemind();
    void aStartInTheBackgroundOpensNoWindow_data();
    void aStartInTheBackgroundOpensNoWindow();
    void itNeedsABus();
};

void TestApplication::whatWasAnsweredSurvivesBeingKilled()
{
    constexpr int rounds = 20;
    constexpr qint64 hourMsecs = 3600000;
    // Schedules one conference after the other until the application is gone from under it.
    qint64 start = QDateTime::currentMSecsSinceEpoch() + 30 * 24 * hourMsecs;
    QStringList answered;
    for (int round = 0; round < rounds; ++round) {
        QCOMPARE(outcome(QStringLiteral("Is Conference Host")), QStringLiteral("No Conference"));
        Admin1Proxy(ServiceName, AdminPath, QDBusConnection::sessionBus())
            .SetCreationLimit(1000000)
            .waitForFinished();
        const pid_t pid = servicePid();
        std::atomic<bool> running{true};
        std::atomic<int> answers{0};
        std::thread creator([&] {
            int code = 0;
            while (running) {
                const QJsonObject created =
                    ask(QStringLiteral("Create Conference"),
                        {{QStringLiteral("startTime"), start},
                         {QStringLiteral("members"),
                          QJsonArray{QJsonObject{{QStringLiteral("name"), QStringLiteral("赵磊")}}}}},
                        code);
                start += hourMsecs;
                if (code != 0) {
                    break;
                }
                answered.append(created.value(QLatin1String("list"))
                                    .toArray()
                                    .at(0)
                                    .toObject()
                                    .value(QLatin1String("confId"))
                                    .toString());
                ++answers;
            }
        });
        // Some are there to be lost, however busy the machine is.
        const bool hasBegun = QTest::qWaitFor([&answers] { return answers >= 2; }, 20000);
        QTest::qWait(static_cast<int>(QRandomGenerator::global()->bounded(60)));
        kill(pid, SIGKILL);
        running = false;
        creator.join();
        QVERIFY(hasBegun);
        QTRY_VERIFY(servicePid() != pid);
    }
    QVERIFY(answered.size() > rounds);
    QVERIFY(!answered.contains(QString()));

    QCOMPARE(outcome(QStringLiteral("Is Conference Host")), QStringLiteral("No Conference"));
    const QString snapshot = Admin1Proxy(ServiceName, AdminPath, QDBusConnection::sessionBus()).Snapshot();
    const QJsonArray conferences =
        QJsonDocument::fromJson(snapshot.toUtf8()).object().value(QLatin1String("conferences")).toArray();
    QSet<QString> kept;
    for (const QJsonValue &value : conferences) {
        const QJsonObject conference = value.toObject();
        kept.insert(conference.value(QLatin1String("conferenceId")).toString());
        // None is there by half.
        QVERIFY(conference.value(QLatin1String("participants")).toArray().size() >=
                (conference.value(QLatin1String("number")).toString() == QLatin1String("880100004") ? 1 : 2));
    }
    for (const QString &confId : qAsConst(answered)) {
        QVERIFY2(kept.contains(confId), qPrintable(confId));
    }
}

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
    QTRY_COMPARE(qint64(servicePid()), application.processId());
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
    QVERIFY(bus.waitForReadyRead(10000));
    const QString address = QString::fromLatin1(bus.readLine()).trimmed();
    const QDBusConnection connection = QDBusConnection::connectToBus(address, QStringLiteral("other"));
    QVERIFY(connection.interface()->startService(ServiceName).isValid());
    const pid_t pid = static_cast<pid_t>(connection.interface()->servicePid(ServiceName).value());
    QVERIFY(isAlive(pid));
    bus.kill();
    QVERIFY(bus.waitForFinished());
    QTRY_VERIFY(!isAlive(pid));
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
    QTRY_COMPARE(qint64(servicePid()), application.processId());
    QCOMPARE(outcome(QStringLiteral("Open Conference List")), QStringLiteral("Success"));
    application.terminate();
    QVERIFY(application.waitForFinished());
}

void TestApplication::aSecondStartEndsAtOnce()
{
    QCOMPARE(outcome(QStringLiteral("Open Conference List")), QStringLiteral("Success"));
    const pid_t first = servicePid();
    QProcess second;
    second.start(QStringLiteral(APPLICATION), QStringList());
    QVERIFY(second.waitForFinished(10000));
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(servicePid(), first);
}

void TestApplication::itTellsWhatItIs()
{
    QProcess application;
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--help")});
    QVERIFY(application.waitForFinished(10000));
    QCOMPARE(application.exitCode(), 0);
    QVERIFY(application.readAllStandardOutput().contains("--service"));
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--version")});
    QVERIFY(application.waitForFinished(10000));
    QCOMPARE(application.readAllStandardOutput().trimmed(), QByteArray("kelvane-contacts " CONTACTS_VERSION));
}

void TestApplication::itRemindsAlsoWithoutAWindow()
{
    const NotificationServer server;
    Admin1Proxy admin(ServiceName, AdminPath, QDBusConnection::sessionBus());
    QVERIFY(admin.LoadSample().value());
    const auto mine = [&server] {
        return server.summaries().filter(QStringLiteral("设计"));
    };
    const qint64 start = QDateTime::currentMSecsSinceEpoch() + 700;
    QVERIFY(!admin
                 .AddConference(QStringLiteral("1"), QStringLiteral("设计讨论"), QStringLiteral("100001"),
                                start, 3600000, 10, QString(), {})
                 .value()
                 .isEmpty());
    QTRY_COMPARE(mine().size(), 1);
    QCOMPARE(mine().last(), QStringLiteral("设计讨论：1 分钟后开始"));
    QTRY_COMPARE(mine().size(), 2);
    QVERIFY(QDateTime::currentMSecsSinceEpoch() >= start);
    QCOMPARE(mine().last(), QStringLiteral("设计讨论：现在开始"));
    // Killed and started again, it shows none of them once more.
    stopService();
    admin.SetFriendLimit(500).waitForFinished();
    QVERIFY(!admin
                 .AddConference(QStringLiteral("2"), QStringLiteral("设计评审"), QStringLiteral("100001"),
                                start + 60000, 3600000, 10, QString(), {})
                 .value()
                 .isEmpty());
    QTRY_COMPARE(mine().size(), 3);
    QCOMPARE(mine().last(), QStringLiteral("设计评审：1 分钟后开始"));
}

void TestApplication::aSessionStartsItToRemind()
{
    // What is due was made by an earlier session's application.
    Admin1Proxy admin(ServiceName, AdminPath, QDBusConnection::sessionBus());
    QVERIFY(admin.LoadSample().value());
    QVERIFY(!admin
                 .AddConference(QStringLiteral("1"), QStringLiteral("设计讨论"), QStringLiteral("100001"),
                                QDateTime::currentMSecsSinceEpoch() + 4 * MinuteMsecs, 60 * MinuteMsecs, 10,
                                QString(), {})
                 .value()
                 .isEmpty());
    stopService();

    const NotificationServer server;
    QProcess application;
    application.setProcessChannelMode(QProcess::ForwardedChannels);
    application.start(QStringLiteral(APPLICATION), autostartArguments());
    QTRY_COMPARE(qint64(servicePid()), application.processId());
    const auto mine = [&server] {
        return server.summaries().filter(QStringLiteral("设计讨论"));
    };
    QTRY_COMPARE(mine(), QStringList{QStringLiteral("设计讨论：4 分钟后开始")});
    application.terminate();
    QVERIFY(application.waitForFinished());
}

void TestApplication::aSessionStartsItOnlyToRemind_data()
{
    QTest::addColumn<bool>("wasUsed");
    QTest::newRow("reminders are switched off") << true;
    QTest::newRow("it has never been used") << false;
}

void TestApplication::aSessionStartsItOnlyToRemind()
{
    QFETCH(bool, wasUsed);
    const QTemporaryDir data;
    if (wasUsed) {
        ContactsBook book(data.filePath(QStringLiteral("kelvane-contacts/contacts.db")));
        QVERIFY(book.change([&book] {
            book.reminders().setSettings({false, 5});
            return true;
        }));
    }
    const QStringList before = QDir(data.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), data.path());
    QProcess application;
    application.setProcessEnvironment(environment);
    application.setProcessChannelMode(QProcess::ForwardedChannels);
    application.start(QStringLiteral(APPLICATION), autostartArguments());
    QVERIFY(application.waitForFinished());
    QCOMPARE(application.exitStatus(), QProcess::NormalExit);
    QCOMPARE(application.exitCode(), 0);
    QCOMPARE(QDir(data.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), before);
}

void TestApplication::aStartInTheBackgroundOpensNoWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("windowsWanted");
    QTest::newRow("from the menu") << QStringList() << 1;
    QTest::newRow("by the bus") << QStringList{QStringLiteral("--service")} << 0;
    QTest::newRow("with the session") << autostartArguments() << 0;
}

void TestApplication::aStartInTheBackgroundOpensNoWindow()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, windowsWanted);
    // The database that starting with the session asks for.
    QCOMPARE(outcome(QStringLiteral("Is Conference Host")), QStringLiteral("No Conference"));
    stopService();
    QProcess first;
    first.setProcessChannelMode(QProcess::MergedChannels);
    first.start(QStringLiteral(APPLICATION), arguments);
    QTRY_COMPARE(qint64(servicePid()), first.processId());
    QCOMPARE(outcome(QStringLiteral("Is Conference Host")),
             QStringLiteral("No Conference")); // past its start
    first.terminate();
    QVERIFY(first.waitForFinished());
    // What Qt says here when a window comes up.
    QCOMPARE(first.readAll().count("does not support raise()"), windowsWanted);

    // Stands for an application that runs already.
    RunningApplication running;
    QVERIFY(running.isThere());
    QProcess second;
    second.setProcessChannelMode(QProcess::ForwardedChannels);
    second.start(QStringLiteral(APPLICATION), arguments);
    QTRY_COMPARE(second.state(), QProcess::NotRunning);
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(running.asked.count(QStringLiteral("Open Conference List")), windowsWanted);
    QCOMPARE(running.parametersAsked.count(QStringLiteral("{\"askedBy\":\"user\"}")), windowsWanted);
}

void TestApplication::itNeedsABus()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/nonexistent/bus"));
    QProcess application;
    application.setProcessEnvironment(environment);
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--service")});
    QVERIFY(application.waitForFinished(10000));
    QCOMPARE(application.exitCode(), 2);
    QVERIFY(application.readAllStandardError().contains("There is no session bus"));
}

QTEST_GUILESS_MAIN(TestApplication)
#include "tst_application.moc"
