// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "busforonequestion.h"
#include "fakecontacts.h"
#include "launcherprogram.h"
#include "notificationserver.h"

#include <QtDBus>
#include <QtTest>

#include <memory>

namespace {

QString meeting()
{
    return QStringLiteral("明天下午三点和张伟开会");
}

QString meetingLine()
{
    return QStringLiteral("预约 11月22日 15:00 与张伟的视频会议");
}

/// Starts a program that looks for the session bus at @p address.
std::unique_ptr<LauncherProgram> startedOn(const QByteArray &address)
{
    const QByteArray ours = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    auto program = std::make_unique<LauncherProgram>();
    qputenv("DBUS_SESSION_BUS_ADDRESS", ours);
    return program;
}

} // namespace

/// The program as used by KRunner and GNOME Shell, over a private bus, on 21 November 2026.
class TestLauncherProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void krunnerGetsALineAndRunsIt();
    void krunnerGetsNothingForDoubt();
    void shellGetsALineAndRunsIt();
    void shellGetsNothingForDoubt();
    void contactsAreFollowedAndNotAskedByMatches();
    void contactsMayComeFromAFile();
    void nothingTypedIsLogged();
    void secondProgramLeavesTheFirstAlone();
    void programEndsWithItsBus();
    void withoutABusItSaysSo();
    void busThatFallsSilentKeepsNobody();
};

void TestLauncherProgram::krunnerGetsALineAndRunsIt()
{
    const NotificationServer notifications;
    const LauncherProgram program;
    QTRY_VERIFY(LauncherProgram::isThere());

    const QDBusMessage matched = LauncherProgram::krunner(QStringLiteral("Match"), {meeting()});
    QCOMPARE(matched.signature(), QStringLiteral("a(sssida{sv})"));
    const devhost::KRunnerMatches matches = LauncherProgram::match(meeting());
    QCOMPARE(matches.size(), 1);
    const devhost::KRunnerMatch &match = matches.first();
    QCOMPARE(match.line, meetingLine());
    QCOMPARE(match.icon, QStringLiteral("speakmate-devhost"));
    QCOMPARE(match.type, 100);
    QVERIFY(match.relevance > 0 && match.relevance <= 1);
    QCOMPARE(match.properties.value(QStringLiteral("category")).toString(),
             QStringLiteral("Voice Assistant"));

    const QDBusMessage actions = LauncherProgram::krunner(QStringLiteral("Actions"));
    QCOMPARE(actions.signature(), QStringLiteral("a(sss)"));
    const QDBusReply<devhost::KRunnerActions> offered = actions;
    QCOMPARE(match.properties.value(QStringLiteral("actions")).toStringList(),
             QStringList{offered.value().constFirst().id});

    QCOMPARE(notifications.shown.size(), 0);
    QCOMPARE(LauncherProgram::krunner(QStringLiteral("Run"), {match.id, QString()}).type(),
             QDBusMessage::ReplyMessage);
    QTRY_COMPARE(notifications.shown.size(), 1);
    QCOMPARE(notifications.last().summary, meetingLine());
    QCOMPARE(notifications.last().body, QStringLiteral("张伟")); // the test plugin echoes the first slot

    LauncherProgram::krunner(QStringLiteral("Run"), {match.id, QString()});
    QTRY_COMPARE(notifications.shown.size(), 2);
    QCOMPARE(notifications.last().summary, QStringLiteral("Not carried out"));
}

void TestLauncherProgram::krunnerGetsNothingForDoubt()
{
    const LauncherProgram program;
    QTRY_VERIFY(LauncherProgram::isThere());
    for (const QString &query : {QStringLiteral("firefox"), QStringLiteral("加入会议"), QString()}) {
        const QDBusMessage reply = LauncherProgram::krunner(QStringLiteral("Match"), {query});
        QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
        QCOMPARE(LauncherProgram::match(query).size(), 0);
    }
}

void TestLauncherProgram::shellGetsALineAndRunsIt()
{
    const NotificationServer notifications;
    const LauncherProgram program;
    QTRY_VERIFY(LauncherProgram::isThere());

    const QStringList results = LauncherProgram::search({meeting()});
    QCOMPARE(results.size(), 1);
    const QDBusReply<QStringList> narrowed =
        LauncherProgram::shell(QStringLiteral("GetSubsearchResultSet"),
                               {QStringList{QStringLiteral("former")}, QStringList{meeting()}});
    QCOMPARE(narrowed.value(), results);

    const QDBusMessage answered = LauncherProgram::shell(QStringLiteral("GetResultMetas"), {results});
    QCOMPARE(answered.signature(), QStringLiteral("aa{sv}"));
    const devhost::SearchMetas metas =
        LauncherProgram::metas(QStringList{QStringLiteral("unknown")} + results);
    QCOMPARE(metas.size(), 1);
    QCOMPARE(metas.first().value(QStringLiteral("id")).toString(), results.first());
    QCOMPARE(metas.first().value(QStringLiteral("name")).toString(), meetingLine());
    QCOMPARE(metas.first().value(QStringLiteral("gicon")).toString(), QStringLiteral("speakmate-devhost"));

    LauncherProgram::shell(QStringLiteral("ActivateResult"),
                           {results.first(), QStringList{meeting()}, uint(0)});
    QTRY_COMPARE(notifications.shown.size(), 1);
    QCOMPARE(notifications.last().summary, meetingLine());
    QCOMPARE(notifications.last().body, QStringLiteral("张伟"));
}

void TestLauncherProgram::shellGetsNothingForDoubt()
{
    const LauncherProgram program;
    QTRY_VERIFY(LauncherProgram::isThere());
    QCOMPARE(LauncherProgram::search({QStringLiteral("text"), QStringLiteral("editor")}), QStringList());
    QCOMPARE(LauncherProgram::search({}), QStringList());
    // Terms split at blanks form one sentence.
    QCOMPARE(LauncherProgram::search({QStringLiteral("加入会议"), QStringLiteral("880100004")}).size(), 1);
}

void TestLauncherProgram::contactsAreFollowedAndNotAskedByMatches()
{
    FakeContacts contacts({QStringLiteral("张伟")});
    const LauncherProgram program;
    QTRY_VERIFY(LauncherProgram::isThere());
    const QString stranger = QStringLiteral("和小白开会");
    QTRY_VERIFY(LauncherProgram::match(stranger).isEmpty()); // once the names have arrived
    const int asked = contacts.asked();
    QVERIFY(asked > 0);
    for (int i = 0; i < 50; ++i) {
        QCOMPARE(LauncherProgram::match(meeting()).size(), 1);
        QCOMPARE(LauncherProgram::search({meeting()}).size(), 1);
    }
    QCOMPARE(contacts.asked(), asked);

    contacts.change({QStringLiteral("张伟"), QStringLiteral("小白")});
    QTRY_COMPARE(LauncherProgram::match(stranger).size(), 1);
    QCOMPARE(contacts.asked(), asked + 1);
}

void TestLauncherProgram::contactsMayComeFromAFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("张伟\n");
    file.close();
    {
        const LauncherProgram program({QStringLiteral("--contacts"), file.fileName()});
        QTRY_VERIFY(LauncherProgram::isThere());
        QCOMPARE(LauncherProgram::match(meeting()).size(), 1);
        QCOMPARE(LauncherProgram::match(QStringLiteral("和小白开会")).size(), 0);
    }
    LauncherProgram program({QStringLiteral("--contacts"), QStringLiteral("/nowhere")});
    QVERIFY(program.process().waitForFinished());
    QCOMPARE(program.process().exitCode(), 2);
}

void TestLauncherProgram::nothingTypedIsLogged()
{
    qputenv("QT_LOGGING_RULES", "*=true");
    LauncherProgram program({QStringLiteral("--verbose")});
    qunsetenv("QT_LOGGING_RULES");
    QTRY_VERIFY(LauncherProgram::isThere());
    QCOMPARE(LauncherProgram::match(QStringLiteral("加770077为好友")).size(), 1);
    QCOMPARE(LauncherProgram::match(QStringLiteral("加入会议770077 密码770077")).size(), 0);
    QCOMPARE(LauncherProgram::match(QStringLiteral("770077")).size(), 0);
    QCOMPARE(LauncherProgram::search({QStringLiteral("加770077为好友")}).size(), 1);
    LauncherProgram::metas(LauncherProgram::search({QStringLiteral("加770077为好友")}));
    program.process().terminate();
    QVERIFY(program.process().waitForFinished());
    const QByteArray errors = program.process().readAllStandardError();
    QVERIFY(!errors.isEmpty()); // it does log
    QVERIFY2(!errors.contains("770077"), errors.constData());
    QCOMPARE(program.process().readAllStandardOutput(), QByteArray());
}

void TestLauncherProgram::secondProgramLeavesTheFirstAlone()
{
    LauncherProgram first;
    QTRY_VERIFY(LauncherProgram::isThere());
    LauncherProgram second;
    QVERIFY(second.process().waitForFinished());
    QCOMPARE(second.process().exitCode(), 0);
    QVERIFY(second.process().readAllStandardError().contains("already serves"));
    QCOMPARE(LauncherProgram::match(meeting()).size(), 1);
}

void TestLauncherProgram::programEndsWithItsBus()
{
    QProcess bus;
    bus.start(QStringLiteral("dbus-daemon"),
              {QStringLiteral("--config-file=" CONTACT_BINARY_DIR "/empty-bus.conf"),
               QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY(bus.waitForReadyRead());
    const QByteArray address = bus.readLine().trimmed();
    const auto program = startedOn(address);
    {
        QDBusConnection other =
            QDBusConnection::connectToBus(QString::fromLocal8Bit(address), QStringLiteral("other bus"));
        QTRY_VERIFY(other.interface()->isServiceRegistered(QStringLiteral("com.kelvane.speakmate.devhost")));
    }
    QDBusConnection::disconnectFromBus(QStringLiteral("other bus"));
    bus.kill();
    QVERIFY(bus.waitForFinished());
    QVERIFY(program->process().waitForFinished(10000));
    QCOMPARE(program->process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process().exitCode(), 0);
}

void TestLauncherProgram::withoutABusItSaysSo()
{
    const auto program = startedOn("unix:path=/nowhere");
    QVERIFY(program->process().waitForFinished(10000));
    QCOMPARE(program->process().exitCode(), 1);
    QCOMPARE(program->process().readAllStandardError(),
             QByteArray("speakmate-devhost: There is no session bus.\n"));
}

/// A bus that answered a probe and then fell silent used to block the program forever.
void TestLauncherProgram::busThatFallsSilentKeepsNobody()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bus"));
    const BusForOneQuestion bus(path);
    QVERIFY(bus.isListening());
    const auto program = startedOn("unix:path=" + QFile::encodeName(path));
    const bool hasEnded = program->process().waitForFinished(10000);
    program->process().kill();
    QVERIFY(hasEnded);
    QVERIFY(bus.wasAsked());
    QCOMPARE(program->process().exitCode(), 1);
    QCOMPARE(program->process().readAllStandardError(),
             QByteArray("speakmate-devhost: There is no session bus.\n"));
}

QTEST_GUILESS_MAIN(TestLauncherProgram)
#include "tst_launcherprogram.moc"
