// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversation.h"
#include "logrecorder.h"
#include "pluginhost.h"
#include "screenshots.h"
#include "semantics.h"
#include "terminalconversation.h"
#include "testcolumns.h"

#include <QtTest>

#include <sstream>

using namespace devhost;

namespace {

const QString TestPlugin = QStringLiteral(TEST_PLUGIN);

/// A conversation with the test plugin.
struct LoadedHost
{
    LogRecorder logs;
    PluginHost host;
    bool isLoaded = host.load(TestPlugin);
    Conversation conversation{host, logs};
};

} // namespace

/// Loading working and broken plugins, and sending turns to one.
class TestPluginHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void unusablePluginIsExplained_data();
    void unusablePluginIsExplained();
    void nameIsLookedUpInTheInstalledFolder();
    void serviceRunsOnAnotherThreadAndReplyIsFetched();
    void everyTurnGetsAFreshService();
    void failingTurnIsToldAndTheNextGoesOn_data();
    void failingTurnIsToldAndTheNextGoesOn();
    void inputQueuesInOrder();
    void replyFromAnotherThreadArrivesLater();
    void replyAfterTheHostHasGoneIsDropped();
    void passwordIsNeitherShownNorLogged();
    void helpIsNoPassword();
    void passwordMayBeginLikeASemanticText();
    void coloursEndWithTheirLine();
    void theConversationPicturesItsCards();
    void tooLongTextIsRefused();
    void withoutPluginEveryTurnFails();
};

void TestPluginHost::cleanup()
{
    qunsetenv("TESTPLUGIN_INIT");
    qunsetenv("TESTPLUGIN_SERVICES");
}

void TestPluginHost::unusablePluginIsExplained_data()
{
    addColumns<QString, QByteArray, QByteArray, int, QString>(
        {"plugin", "init", "services", "kind", "named"});
    const QByteArray none;
    QTest::newRow("a file that is not there")
        << QStringLiteral("/nowhere/x.so") << none << none << int(PluginProblem::Missing)
        << QStringLiteral("/nowhere/x.so");
    QTest::newRow("a folder") << QStringLiteral("/") << none << none << int(PluginProblem::Missing)
                              << QStringLiteral("/");
    QTest::newRow("a text") << QStringLiteral(CONTACT_SOURCE_DIR "/CMakeLists.txt") << none << none
                            << int(PluginProblem::NotAPlugin) << QStringLiteral("not a Qt plugin");
    QTest::newRow("a library") << QStringLiteral(PLAIN_LIBRARY) << none << none
                               << int(PluginProblem::NotAPlugin) << QStringLiteral("not a Qt plugin");
    QTest::newRow("another interface")
        << QStringLiteral(OTHER_PLUGIN) << none << none << int(PluginProblem::OtherInterface)
        << QStringLiteral("org.example.other.1");
    QTest::newRow("init() fails") << TestPlugin << QByteArray("fail") << none
                                  << int(PluginProblem::InitFailed) << QStringLiteral("-3");
    QTest::newRow("init() answers something else than 0")
        << TestPlugin << QByteArray("partly") << none << int(PluginProblem::InitFailed)
        << QStringLiteral("init() answered 1");
    QTest::newRow("init() throws") << TestPlugin << QByteArray("throw") << none
                                   << int(PluginProblem::InitFailed) << QStringLiteral("no start");
    QTest::newRow("no service") << TestPlugin << none << QByteArray("none") << int(PluginProblem::NoService)
                                << QStringLiteral("no service");
}

void TestPluginHost::unusablePluginIsExplained()
{
    QFETCH(QString, plugin);
    QFETCH(QByteArray, init);
    QFETCH(QByteArray, services);
    QFETCH(int, kind);
    QFETCH(QString, named);
    qputenv("TESTPLUGIN_INIT", init);
    qputenv("TESTPLUGIN_SERVICES", services);
    PluginHost host;
    QVERIFY(!host.load(plugin));
    QVERIFY(!host.isLoaded());
    QCOMPARE(int(host.problem().kind), kind);
    QVERIFY2(host.problem().what.contains(named), qUtf8Printable(host.problem().what));
    QVERIFY(!host.problem().whatToDo.isEmpty());
}

void TestPluginHost::nameIsLookedUpInTheInstalledFolder()
{
    PluginHost host;
    QVERIFY(!host.load(QStringLiteral("surely-not-installed")));
    QVERIFY2(host.problem().what.contains(PluginHost::installedFolder() +
                                          QStringLiteral("/libsurely-not-installed.so")),
             qUtf8Printable(host.problem().what));
}

void TestPluginHost::serviceRunsOnAnotherThreadAndReplyIsFetched()
{
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QSignalSpy finished(&conversation, &Conversation::finished);
    const int id = conversation.sendSemantic(semantic("ECHO", QStringLiteral("你好")));
    QVERIFY(finished.wait());
    const Turn turn = conversation.turn(id);
    QCOMPARE(turn.state, Turn::Done);
    QCOMPARE(turn.display, QStringLiteral("你好"));
    QCOMPARE(turn.code, 0);
    QCOMPARE(turn.type, 3);
    QVERIFY(turn.serviceMsecs > 0 && turn.replyMsecs > 0);
    QVERIFY(turn.failure.isEmpty());
    QCOMPARE(turn.logs.size(), 1);
    QCOMPARE(turn.logs.first().text, QStringLiteral("service ECHO on another thread"));
    QVERIFY(!conversation.isBusy());
}

void TestPluginHost::everyTurnGetsAFreshService()
{
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QSignalSpy idle(&conversation, &Conversation::idle);
    conversation.sendSemantic(semantic("COUNT"));
    const int second = conversation.sendSemantic(semantic("COUNT"));
    QVERIFY(idle.wait());
    QCOMPARE(conversation.turn(second).display, QStringLiteral("use 1"));
}

void TestPluginHost::failingTurnIsToldAndTheNextGoesOn_data()
{
    addColumns<QString, QString>({"text", "told"});
    QTest::newRow("service() throws") << semantic("THROW") << QStringLiteral("thrown on purpose");
    QTest::newRow("getServiceReply() throws")
        << semantic("THROWREPLY") << QStringLiteral("thrown in the reply");
    QTest::newRow("no reply") << semantic("NOREPLY") << QStringLiteral("gave no reply");
}

void TestPluginHost::failingTurnIsToldAndTheNextGoesOn()
{
    QFETCH(QString, text);
    QFETCH(QString, told);
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QSignalSpy idle(&conversation, &Conversation::idle);
    QSignalSpy failed(&conversation, &Conversation::failed);
    const int bad = conversation.sendSemantic(text);
    const int good = conversation.sendSemantic(semantic("ECHO", QStringLiteral("weiter")));
    QVERIFY(idle.wait());
    QCOMPARE(failed.size(), 1);
    QVERIFY2(conversation.turn(bad).failure.contains(told), qUtf8Printable(conversation.turn(bad).failure));
    QCOMPARE(conversation.turn(good).display, QStringLiteral("weiter"));
}

void TestPluginHost::inputQueuesInOrder()
{
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QStringList order;
    connect(&conversation, &Conversation::started, this,
            [&](int turn) { order << QStringLiteral("+%1").arg(turn); });
    connect(&conversation, &Conversation::finished, this,
            [&](int turn) { order << QStringLiteral("-%1").arg(turn); });
    QSignalSpy idle(&conversation, &Conversation::idle);
    for (int i = 0; i < 3; ++i) {
        conversation.sendSemantic(semantic("SLOW", QStringLiteral("20")));
    }
    QVERIFY(conversation.isBusy());
    QVERIFY(order.isEmpty());
    QVERIFY(idle.wait());
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("+1 -1 +2 -2 +3 -3"));
    QCOMPARE(idle.size(), 1);
}

void TestPluginHost::replyFromAnotherThreadArrivesLater()
{
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QSignalSpy later(&conversation, &Conversation::repliedLater);
    QThread *thread = nullptr;
    connect(&conversation, &Conversation::repliedLater, this, [&] { thread = QThread::currentThread(); });
    conversation.sendSemantic(semantic("LATE", QStringLiteral("x")));
    QVERIFY(later.wait());
    QCOMPARE(later.first().at(0).toInt(), 1);
    QCOMPARE(later.first().at(1).value<Reply>().displayText.toString(), QStringLiteral("later"));
    QCOMPARE(thread, this->thread());
}

void TestPluginHost::replyAfterTheHostHasGoneIsDropped()
{
    // Repeated, because the late reply races with the host's destruction.
    for (int i = 0; i < 50; ++i) {
        LoadedHost host;
        QVERIFY(host.isLoaded);
        Conversation &conversation = host.conversation;
        QSignalSpy idle(&conversation, &Conversation::idle);
        conversation.sendSemantic(semantic("LATE", QStringLiteral("x")));
        QVERIFY(idle.wait());
    }
}

void TestPluginHost::passwordIsNeitherShownNorLogged()
{
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QSignalSpy idle(&conversation, &Conversation::idle);
    QSignalSpy said(&conversation, &Conversation::said);
    const int id = conversation.sendSemantic(QStringLiteral(
        R"({"intent":{"semantic":[{"intent":"PW2468","slots":[{"name":"password","value":"2468"}]}]}})"));
    QVERIFY(idle.wait());
    const Turn turn = conversation.turn(id);
    QVERIFY2(!turn.semantic.contains(QLatin1String("2468")), qUtf8Printable(turn.semantic));
    QVERIFY(turn.semantic.contains(QStringLiteral("••••")));
    QVERIFY(!turn.logs.isEmpty());
    for (const LogRecord &record : turn.logs) {
        QVERIFY2(!record.text.contains(QLatin1String("2468")), qUtf8Printable(record.text));
    }
}

void TestPluginHost::helpIsNoPassword()
{
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QSignalSpy idle(&conversation, &Conversation::idle);
    const int help = conversation.say(QStringLiteral("帮助"));
    QVERIFY(idle.wait());
    QVERIFY(conversation.turn(help).display.startsWith(QStringLiteral("您可以说")));
    qputenv("TESTPLUGIN_REPLIES", "ASKPASSWORD");
    conversation.say(QStringLiteral("加入会议880100002"));
    QVERIFY(idle.wait());
    QVERIFY(conversation.expectsSecret());
    // This input may be a password, so only the plugin's words are shown.
    const int secret = conversation.say(QStringLiteral("help"));
    QVERIFY(idle.wait());
    qunsetenv("TESTPLUGIN_REPLIES");
    QCOMPARE(conversation.turn(secret).display, QStringLiteral("请输入密码:"));
}

/// Such a password used to be taken for semantic JSON, and kept and saved in clear text.
void TestPluginHost::passwordMayBeginLikeASemanticText()
{
    const QString password = QStringLiteral("{2468}");
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QSignalSpy idle(&conversation, &Conversation::idle);
    qputenv("TESTPLUGIN_REPLIES", "ASKPASSWORD");
    conversation.say(QStringLiteral("加入会议880100002"));
    // One typed before the prompt came, and one after.
    const int early = conversation.say(password);
    QVERIFY(idle.wait());
    QVERIFY(conversation.expectsSecret());
    const int late = conversation.say(password);
    const QString shown = conversation.turn(late).said;
    QVERIFY(idle.wait());
    // Input explicitly sent as semantic stays semantic.
    const int semanticText = conversation.sendSemantic(semantic("ECHO", QStringLiteral("回声")));
    QVERIFY(idle.wait());
    qunsetenv("TESTPLUGIN_REPLIES");
    QVERIFY2(shown.startsWith(QChar(0x2022)), qUtf8Printable(shown));
    for (const int id : {early, late}) {
        const Turn turn = conversation.turn(id);
        QVERIFY2(turn.said.startsWith(QChar(0x2022)), qUtf8Printable(turn.said));
        QVERIFY2(!turn.semantic.contains(QLatin1String("2468")), qUtf8Printable(turn.semantic));
        // The prompt is repeated and says what a password may consist of.
        QVERIFY2(turn.semantic.contains(QStringLiteral("请输入会议密码")), qUtf8Printable(turn.semantic));
    }
    QVERIFY(conversation.turn(semanticText).said.endsWith(QLatin1String("ECHO")));
}

void TestPluginHost::coloursEndWithTheirLine()
{
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    std::istringstream input(semantic("ECHO", QStringLiteral("好")).toStdString() + "\n" +
                             semantic("THROW").toStdString() + "\n");
    std::ostringstream output;
    std::ostringstream errors;
    TerminalConversation terminal(conversation, {input, output, errors, true, false}, Screenshots(QString()));
    QSignalSpy finished(&terminal, &TerminalConversation::finished);
    terminal.start();
    QVERIFY(finished.wait());
    const QStringList lines =
        QString::fromStdString(output.str()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(lines.size() >= 4);
    for (const QString &line : lines) {
        QVERIFY2(line.startsWith(QLatin1String("\033[")) && line.endsWith(QLatin1String("\033[0m")),
                 qPrintable(line));
    }
    QVERIFY(output.str().find("\033[1mAssistant: 好\033[0m") != std::string::npos);
    QVERIFY(output.str().find("\033[31m") != std::string::npos);
}

void TestPluginHost::theConversationPicturesItsCards()
{
    const QTemporaryDir folder;
    LoadedHost host;
    QVERIFY(host.isLoaded);
    std::istringstream input(semantic("CARD", QStringLiteral("卡")).toStdString() + "\n");
    std::ostringstream output;
    std::ostringstream errors;
    TerminalConversation terminal(host.conversation, {input, output, errors, false, false},
                                  Screenshots(folder.path()));
    QSignalSpy finished(&terminal, &TerminalConversation::finished);
    terminal.start();
    QVERIFY(finished.wait());
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("turn-01.png")});
    const QString picture = folder.path() + QStringLiteral("/turn-01.png");
    QVERIFY(!QImage(picture).isNull());
    QVERIFY2(output.str().find(picture.toStdString()) != std::string::npos, output.str().c_str());
}

void TestPluginHost::tooLongTextIsRefused()
{
    LoadedHost host;
    QVERIFY(host.isLoaded);
    Conversation &conversation = host.conversation;
    QSignalSpy idle(&conversation, &Conversation::idle);
    const int id = conversation.say(QString(Conversation::LongestInput + 1, QLatin1Char('x')));
    QVERIFY(idle.wait());
    QVERIFY(conversation.turn(id).failure.contains(QLatin1String("too long")));
}

void TestPluginHost::withoutPluginEveryTurnFails()
{
    LogRecorder logs;
    PluginHost host;
    Conversation conversation(host, logs);
    QSignalSpy idle(&conversation, &Conversation::idle);
    const int id = conversation.say(QStringLiteral("你好"));
    QVERIFY(idle.wait());
    QCOMPARE(conversation.turn(id).failure, QStringLiteral("No plugin is loaded."));
}

QTEST_MAIN(TestPluginHost)
#include "tst_pluginhost.moc"
