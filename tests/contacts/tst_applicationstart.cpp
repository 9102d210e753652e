// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "admin1proxy.h"
#include "applicationonbus.h"
#include "notificationserver.h"

#include "book/contactsbook.h"
#include "core/conference.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString outcome(const QString &action)
{
    return ask(action).ret();
}

/// Returns the arguments with which the session starts the application.
QStringList autostartArguments()
{
    const QSettings entry(QStringLiteral(CONTACT_SOURCE_DIR "/data/autostart/com.kelvane.meetlynx.desktop"),
                          QSettings::IniFormat);
    QStringList words = entry.value(QStringLiteral("Desktop Entry/Exec")).toString().split(QLatin1Char(' '));
    words.removeFirst();
    return words;
}

} // namespace

/// Owns the application's name on the bus and records what it is asked.
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

/// Starting the application: by the user, by the bus, with the session for reminders, and twice.
class TestApplicationStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { killApplication(); }

    void aSecondStartEndsAtOnce();
    void itTellsWhatItIs();
    void aStartInTheBackgroundOpensNoWindow_data();
    void aStartInTheBackgroundOpensNoWindow();
    void aSessionStartsItToRemind();
    void aSessionStartsItOnlyToRemind_data();
    void aSessionStartsItOnlyToRemind();
    void itRemindsAlsoWithoutAWindow();
};

void TestApplicationStart::aSecondStartEndsAtOnce()
{
    QCOMPARE(outcome(QStringLiteral("Open Conference List")), QStringLiteral("Success"));
    const pid_t first = servicePid();
    QProcess second;
    second.start(QStringLiteral(APPLICATION), QStringList());
    QVERIFY(second.waitForFinished(PatientMsecs));
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(servicePid(), first);
}

void TestApplicationStart::itTellsWhatItIs()
{
    QProcess application;
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--help")});
    QVERIFY(application.waitForFinished(PatientMsecs));
    QCOMPARE(application.exitCode(), 0);
    QVERIFY(application.readAllStandardOutput().contains("--service"));
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--version")});
    QVERIFY(application.waitForFinished(PatientMsecs));
    QCOMPARE(application.readAllStandardOutput().trimmed(), QByteArray("kelvane-contacts " CONTACTS_VERSION));
}

void TestApplicationStart::aStartInTheBackgroundOpensNoWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("windowsWanted");
    QTest::newRow("from the menu") << QStringList() << 1;
    QTest::newRow("by the bus") << QStringList{QStringLiteral("--service")} << 0;
    QTest::newRow("with the session") << autostartArguments() << 0;
}

void TestApplicationStart::aStartInTheBackgroundOpensNoWindow()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, windowsWanted);
    // Creates the database, without which a start with the session ends at once.
    QCOMPARE(outcome(QStringLiteral("Is Conference Host")), QStringLiteral("No Conference"));
    killApplication();
    QProcess first;
    first.setProcessChannelMode(QProcess::MergedChannels);
    first.start(QStringLiteral(APPLICATION), arguments);
    QTRY_COMPARE_WITH_TIMEOUT(qint64(servicePid()), first.processId(), PatientMsecs);
    QCOMPARE(outcome(QStringLiteral("Is Conference Host")),
             QStringLiteral("No Conference")); // start-up is complete
    first.terminate();
    QVERIFY(first.waitForFinished());
    // Qt's offscreen platform says so when a window comes up.
    QCOMPARE(first.readAll().count("does not support raise()"), windowsWanted);

    // A stand-in for an already running application.
    RunningApplication running;
    QVERIFY(running.isThere());
    QProcess second;
    second.setProcessChannelMode(QProcess::ForwardedChannels);
    second.start(QStringLiteral(APPLICATION), arguments);
    QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, PatientMsecs);
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(running.asked.count(QStringLiteral("Open Conference List")), windowsWanted);
    QCOMPARE(running.parametersAsked.count(QStringLiteral("{\"askedBy\":\"user\"}")), windowsWanted);
}

void TestApplicationStart::aSessionStartsItToRemind()
{
    // An earlier session's application added the conference that is due.
    Admin1Proxy admin(ServiceName, AdminPath, QDBusConnection::sessionBus());
    QVERIFY(admin.LoadSample().value());
    QVERIFY(!admin
                 .AddConference(QStringLiteral("1"), QStringLiteral("设计讨论"), QStringLiteral("100001"),
                                QDateTime::currentMSecsSinceEpoch() + 4 * MinuteMsecs, 60 * MinuteMsecs, 10,
                                QString(), {})
                 .value()
                 .isEmpty());
    killApplication();

    const NotificationServer server;
    QProcess application;
    application.setProcessChannelMode(QProcess::ForwardedChannels);
    application.start(QStringLiteral(APPLICATION), autostartArguments());
    QTRY_COMPARE_WITH_TIMEOUT(qint64(servicePid()), application.processId(), PatientMsecs);
    const auto mine = [&server] {
        return server.summaries().filter(QStringLiteral("设计讨论"));
    };
    QTRY_COMPARE_WITH_TIMEOUT(mine(), QStringList{QStringLiteral("设计讨论: starts in 4 min")}, PatientMsecs);
    application.terminate();
    QVERIFY(application.waitForFinished());
}

void TestApplicationStart::aSessionStartsItOnlyToRemind_data()
{
    QTest::addColumn<bool>("wasUsed");
    QTest::newRow("reminders are switched off") << true;
    QTest::newRow("it has never been used") << false;
}

void TestApplicationStart::aSessionStartsItOnlyToRemind()
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

void TestApplicationStart::itRemindsAlsoWithoutAWindow()
{
    Admin1Proxy admin(ServiceName, AdminPath, QDBusConnection::sessionBus());
    QVERIFY(admin.LoadSample().value());
    // Not earlier: it might show what a previous test function left in the database.
    const NotificationServer server;
    const auto mine = [&server] {
        return server.summaries().filter(QStringLiteral("设计"));
    };
    const qint64 start = QDateTime::currentMSecsSinceEpoch() + 3000;
    QVERIFY(!admin
                 .AddConference(QStringLiteral("1"), QStringLiteral("设计讨论"), QStringLiteral("100001"),
                                start, 3600000, 10, QString(), {})
                 .value()
                 .isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(mine().size(), 1, PatientMsecs);
    QCOMPARE(mine().constLast(), QStringLiteral("设计讨论: starts in 1 min"));
    QTRY_COMPARE_WITH_TIMEOUT(mine().size(), 2, PatientMsecs);
    QVERIFY(QDateTime::currentMSecsSinceEpoch() >= start);
    QCOMPARE(mine().constLast(), QStringLiteral("设计讨论: starts now"));
    // After a kill and a restart, it repeats none of them.
    killApplication();
    admin.SetFriendLimit(500).waitForFinished();
    QVERIFY(!admin
                 .AddConference(QStringLiteral("2"), QStringLiteral("设计评审"), QStringLiteral("100001"),
                                start + 60000, 3600000, 10, QString(), {})
                 .value()
                 .isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(mine().size(), 3, PatientMsecs);
    QCOMPARE(mine().constLast(), QStringLiteral("设计评审: starts in 1 min"));
}

QTEST_GUILESS_MAIN(TestApplicationStart)
#include "tst_applicationstart.moc"
