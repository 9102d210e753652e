// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationlink.h"
#include "bubble.h"
#include "conversationview.h"
#include "fakecontacts.h"
#include "inputline.h"
#include "launcherdesk.h"
#include "logrecorder.h"
#include "mainwindow.h"
#include "notificationserver.h"
#include "testcolumns.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace devhost;

namespace {

/// A desk with the test plugin, whose answers TESTPLUGIN_REPLIES may choose.
class Desk
{
public:
    Desk() : m_conversation(host(), m_logs), m_desk(m_conversation, QDBusConnection::sessionBus()) {}

    LauncherDesk *operator->() { return &m_desk; }
    Conversation &conversation() { return m_conversation; }
    /// Matches and runs @p sentence.
    void run(const QString &sentence, LauncherDesk::Place place = LauncherDesk::Place::WhereItFits)
    {
        const LauncherAct act = m_desk.match(sentence);
        QVERIFY2(!act.isEmpty(), qPrintable(sentence));
        m_desk.run(act.id, place);
        QTRY_VERIFY(!m_conversation.isBusy());
    }

    /// Returns the visible window; null if there is none.
    static MainWindow *window()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *widget : windows) {
            auto *window = qobject_cast<MainWindow *>(widget);
            if (window != nullptr && window->isVisible()) {
                return window;
            }
        }
        return nullptr;
    }
    static QStringList bubbles()
    {
        QStringList texts;
        const auto bubbles = window()->view()->findChildren<Bubble *>();
        for (const Bubble *bubble : bubbles) {
            if (bubble->isVisible()) {
                texts.append(bubble->text());
            }
        }
        return texts;
    }

private:
    static PluginHost &host()
    {
        static std::unique_ptr<PluginHost> host;
        if (host == nullptr) {
            host = std::make_unique<PluginHost>();
            if (!host->load(QStringLiteral(TEST_PLUGIN))) {
                qFatal("%s", qUtf8Printable(host->problem().toText()));
            }
            qAddPostRoutine([] { host.reset(); });
        }
        return *host;
    }

    LogRecorder m_logs;
    Conversation m_conversation;
    LauncherDesk m_desk;
};

/// A desk that ran @p sentence, to which the plugin answered with @p reply. Notifications are shown.
struct AskedDesk
{
    NotificationServer server;
    Desk desk;

    AskedDesk(const char *reply, const QString &sentence)
    {
        qputenv("TESTPLUGIN_REPLIES", reply);
        desk.run(sentence);
    }
};

} // namespace

/// Where the reply to a launcher's act is shown.
class TestLauncherDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("TESTPLUGIN_REPLIES"); }
    void textIsNotified();
    void cardBringsUpTheWindow();
    void questionBringsUpTheWindow();
    void actAnswersNoOpenQuestion();
    void timesAreThoseOfTheLine();
    void windowIsUsedWhenAskedFor();
    void withoutNotificationsTheWindowComes();
    void clickOnANotificationBringsUpTheWindow();
    void unknownActIsSaidToBeGone();
    void unknownActIsSaidInTheWindowWhereNobodyNotifies();
    void searchGoesOnInTheWindow();
    void menuAsksForTheApplicationsWindowInItsUsersName();
};

void TestLauncherDesk::textIsNotified()
{
    const NotificationServer server;
    Desk desk;
    desk.run(QStringLiteral("加200002为好友"));
    QTRY_COMPARE(server.shown.size(), 1);
    QCOMPARE(server.last().summary, QStringLiteral("向 200002 发送好友申请"));
    QCOMPARE(server.last().body, QStringLiteral("200002")); // the test plugin echoes the first slot
    QCOMPARE(server.last().icon, QStringLiteral("speakmate-devhost"));
    QVERIFY(Desk::window() == nullptr);
}

void TestLauncherDesk::cardBringsUpTheWindow()
{
    const AskedDesk asked("CARD", QStringLiteral("加200002为好友"));
    QTRY_VERIFY(Desk::window() != nullptr);
    QVERIFY(Desk::bubbles().contains(QStringLiteral("加200002为好友")));
    const auto buttons = Desk::window()->view()->findChildren<QPushButton *>();
    QVERIFY(std::any_of(buttons.begin(), buttons.end(), [](const QPushButton *button) {
        return button->text() == QStringLiteral("按我") && button->isVisible();
    }));
    QCOMPARE(asked.server.shown.size(), 0);
}

void TestLauncherDesk::questionBringsUpTheWindow()
{
    AskedDesk asked("ASKPASSWORD", QStringLiteral("加入会议880100004"));
    QTRY_VERIFY(Desk::window() != nullptr);
    QVERIFY(asked.desk.conversation().expectsSecret());
    QCOMPARE(Desk::window()->input()->echoMode(), QLineEdit::Password);
    // A launcher's search text is not taken for the password.
    asked.desk->openWith(QStringLiteral("text"));
    QCOMPARE(Desk::window()->input()->text(), QString());
    QCOMPARE(asked.server.shown.size(), 0);
}

void TestLauncherDesk::actAnswersNoOpenQuestion()
{
    const NotificationServer server;
    Desk desk;
    desk->openWith(QString());
    Desk::window()->submit(QStringLiteral("下周和张伟开会"));
    QTRY_VERIFY(!desk.conversation().isBusy());
    QVERIFY(desk.conversation().turn(1).semantic.contains(QStringLiteral("请问是哪一天")));
    // The act doesn't answer the open question about the day.
    desk.run(QStringLiteral("明天下午三点和李娜开会"));
    const QString semantic = desk.conversation().turn(desk.conversation().lastTurn()).semantic;
    QVERIFY2(semantic.contains(QStringLiteral("李娜")) && !semantic.contains(QStringLiteral("张伟")),
             qUtf8Printable(semantic));
}

void TestLauncherDesk::timesAreThoseOfTheLine()
{
    LogRecorder logs;
    PluginHost none;
    Conversation conversation(none, logs);
    const int turn = conversation.sayAsOf(QStringLiteral("明天下午三点开会"),
                                          QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59)));
    QTRY_VERIFY(!conversation.isBusy());
    QVERIFY(conversation.turn(turn).semantic.contains(QLatin1String("2027-01-01T15:00:00")));
}

void TestLauncherDesk::windowIsUsedWhenAskedFor()
{
    const NotificationServer server;
    Desk desk;
    desk.run(QStringLiteral("加200002为好友"), LauncherDesk::Place::Window);
    QTRY_VERIFY(Desk::window() != nullptr);
    QTRY_VERIFY(Desk::bubbles().contains(QStringLiteral("200002")));
}

void TestLauncherDesk::withoutNotificationsTheWindowComes()
{
    Desk desk;
    desk.run(QStringLiteral("加200002为好友"));
    QTRY_VERIFY(Desk::window() != nullptr);
    QVERIFY(Desk::bubbles().contains(QStringLiteral("200002")));
}

void TestLauncherDesk::clickOnANotificationBringsUpTheWindow()
{
    NotificationServer server;
    Desk desk;
    desk.run(QStringLiteral("加200002为好友"));
    QTRY_COMPARE(server.shown.size(), 1);
    QCOMPARE(server.last().actions.value(0), QStringLiteral("default"));
    Q_EMIT server.ActionInvoked(77, QStringLiteral("default")); // another program's
    Q_EMIT server.ActionInvoked(1, QStringLiteral("other"));
    Q_EMIT server.NotificationClosed(77, 2);
    // Signals arrive in order, so none of the ones before has brought up the window.
    desk.run(QStringLiteral("加200003为好友"));
    QTRY_COMPARE(server.shown.size(), 2);
    QVERIFY(Desk::window() == nullptr);
    Q_EMIT server.ActionInvoked(1, QStringLiteral("default"));
    QTRY_VERIFY(Desk::window() != nullptr);
}

void TestLauncherDesk::unknownActIsSaidToBeGone()
{
    const NotificationServer server;
    Desk desk;
    desk->run(QStringLiteral("nonsense"), LauncherDesk::Place::WhereItFits);
    QTRY_COMPARE(server.shown.size(), 1);
    QCOMPARE(server.last().summary, QStringLiteral("没有执行"));
    QCOMPARE(desk.conversation().lastTurn(), 0);
}

void TestLauncherDesk::unknownActIsSaidInTheWindowWhereNobodyNotifies()
{
    Desk desk;
    desk->run(QStringLiteral("nonsense"), LauncherDesk::Place::WhereItFits);
    QTRY_VERIFY(Desk::window() != nullptr);
    const auto *problem = Desk::window()->findChild<QLabel *>(QStringLiteral("problem"));
    QTRY_VERIFY(problem->isVisible());
    QCOMPARE(problem->text(), QStringLiteral("这一条已经失效，请重新输入。"));
}

void TestLauncherDesk::searchGoesOnInTheWindow()
{
    const NotificationServer server;
    Desk desk;
    desk->openWith(QStringLiteral("明天和张伟开会"));
    QTRY_VERIFY(Desk::window() != nullptr);
    QCOMPARE(Desk::window()->input()->text(), QStringLiteral("明天和张伟开会"));
    QCOMPARE(desk.conversation().lastTurn(), 0);
}

/// Such a window gets the focus; one brought up by a program's request does not.
void TestLauncherDesk::menuAsksForTheApplicationsWindowInItsUsersName()
{
    const FakeContacts contacts({});
    ApplicationLink link;
    link.openWindow();
    QTRY_COMPARE(contacts.parameters(), QStringList(QStringLiteral("{\"askedBy\":\"user\"}")));
}

QTEST_MAIN(TestLauncherDesk)
#include "tst_launcherdesk.moc"
