// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "knownnames.h"
#include "realdesk.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <algorithm>
#include <csignal>
#include <iostream>

using namespace devhost;

/**
 * The whole desk: the real window, plugin and application on a private bus, driven as a user would. Results
 * are checked in the application's database.
 */
class TestDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void duplicateNameIsPickedAndConfirmed();
    void durationIsChangedOnTheCard();
    void conferenceIsCancelledOnTheCard();
    void queryShowsACard();
    void conferenceIsJoinedWithAPasswordInTwoTurns();
    void friendIsAdded();
    void bubbleHasAMenu();
    void statusLineTellsTheConferenceAndLeavesIt();
    void statusLineNeedsNoAdministration();
    void namesComeFromTheApplication();

private:
    /// Clicks, and prints how long the click kept the window busy.
    static void press(QPushButton *button);
    static int count(const QString &sql);

    std::unique_ptr<RealDesk> m_desk; ///< recreated for each test
};

void TestDesk::initTestCase()
{
    // The first request starts the application, which creates its database.
    init();
    m_desk->say(QStringLiteral("查询今天的会议"));
    auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setDatabaseName(qEnvironmentVariable("XDG_DATA_HOME") +
                             QStringLiteral("/kelvane-contacts/contacts.db"));
    QVERIFY(database.open());
}

void TestDesk::init()
{
    m_desk.reset();
    m_desk = std::make_unique<RealDesk>();
}

void TestDesk::press(QPushButton *button)
{
    const QByteArray text = button->text().toUtf8();
    QElapsedTimer timer;
    timer.start();
    QTest::mouseClick(button, Qt::LeftButton);
    std::cout << "button " << text.constData() << ": " << timer.elapsed() << " ms" << std::endl;
}

int TestDesk::count(const QString &sql)
{
    QSqlQuery query;
    return query.exec(QStringLiteral("SELECT COUNT(*) FROM ") + sql) && query.next() ? query.value(0).toInt()
                                                                                     : -1;
}

void TestDesk::duplicateNameIsPickedAndConfirmed()
{
    const QString created =
        QStringLiteral("conference c JOIN participant p ON p.conference_id = c.id JOIN person q ON "
                       "q.user_id = p.user_id WHERE c.id > 9 AND q.account = '100012'");
    const int before = count(QStringLiteral("conference"));
    m_desk->say(QStringLiteral("预约后天下午五点的视频会议，叫上张伟"));
    QCOMPARE(m_desk->conversation().turn(1).code, -16003);
    QCOMPARE(count(QStringLiteral("conference")), before);
    QTRY_VERIFY(m_desk->shown<QLabel>(QStringLiteral("市场部张伟")) != nullptr);
    QTest::mouseClick(m_desk->shown<QLabel>(QStringLiteral("市场部张伟")), Qt::LeftButton);
    auto *confirm = m_desk->shown<QPushButton>(QStringLiteral("确 认"));
    QVERIFY(confirm != nullptr && confirm->isEnabled());
    press(confirm);
    QTRY_VERIFY(m_desk->window().view()->count() == 3);
    QCOMPARE(count(QStringLiteral("conference")), before + 1);
    QCOMPARE(count(created), 1);
}

void TestDesk::durationIsChangedOnTheCard()
{
    const QString twoHours = QStringLiteral("conference WHERE id > 9 AND duration_msecs = 7200000");
    QCOMPARE(count(twoHours), 0);
    m_desk->say(QStringLiteral("预约大后天下午三点的视频会议"));
    QCOMPARE(m_desk->conversation().turn(1).code, 0);
    QTRY_VERIFY(m_desk->shown<QPushButton>(QStringLiteral("修 改")) != nullptr);
    QComboBox *duration = nullptr;
    const auto boxes = m_desk->window().view()->findChildren<QComboBox *>();
    for (auto *combo : boxes) {
        if (combo->currentText() == QStringLiteral("1小时")) {
            duration = combo;
        }
    }
    QVERIFY(duration != nullptr);
    duration->setFocus();
    QTest::keyClick(duration, Qt::Key_Down);
    QCOMPARE(duration->currentText(), QStringLiteral("2小时"));
    press(m_desk->shown<QPushButton>(QStringLiteral("修 改")));
    QTRY_VERIFY(m_desk->window().view()->count() == 3);
    QCOMPARE(count(twoHours), 1);
}

void TestDesk::conferenceIsCancelledOnTheCard()
{
    const int before = count(QStringLiteral("conference"));
    m_desk->say(QStringLiteral("预约大后天晚上八点的视频会议"));
    QCOMPARE(count(QStringLiteral("conference")), before + 1);
    QTRY_VERIFY(m_desk->shown<QPushButton>(QStringLiteral("取 消")) != nullptr);
    m_desk->window().activateWindow();
    press(m_desk->shown<QPushButton>(QStringLiteral("取 消")));
    QTRY_VERIFY(m_desk->window().view()->count() == 3);
    QCOMPARE(count(QStringLiteral("conference")), before);
    // The user can go on typing.
    QCOMPARE(QApplication::focusWidget(), m_desk->window().input());
}

void TestDesk::queryShowsACard()
{
    m_desk->say(QStringLiteral("查询今天的会议"));
    QCOMPARE(m_desk->conversation().turn(1).type, 11);
    QCOMPARE(m_desk->conversation().turn(1).cardClass, QStringLiteral("ConferenceMsgStaticWidget"));
    QTRY_VERIFY(m_desk->shown<QLabel>(QStringLiteral("部门早会")) != nullptr);
    QCOMPARE(m_desk->conversation().turn(1).calls.size(), 1);
    QCOMPARE(m_desk->conversation().turn(1).calls.first().action, QStringLiteral("Search Conference"));
}

void TestDesk::conferenceIsJoinedWithAPasswordInTwoTurns()
{
    const QString inside =
        QStringLiteral("participant p JOIN conference c ON c.id = p.conference_id WHERE "
                       "c.dial_number = '880100002' AND p.user_id = (SELECT user_id FROM session)");
    QCOMPARE(count(inside), 0);
    m_desk->say(QStringLiteral("加入会议880100002"));
    QCOMPARE(m_desk->lastText(), QStringLiteral("请输入密码:"));
    QCOMPARE(m_desk->window().input()->echoMode(), QLineEdit::Password);
    m_desk->say(QStringLiteral("246810"));
    QTRY_COMPARE(m_desk->lastText(), QStringLiteral("好的，您已成功加入会议。"));
    QCOMPARE(count(inside), 1);
    QCOMPARE(m_desk->window().input()->echoMode(), QLineEdit::Normal);
    // The password shows up nowhere.
    const Turn turn = m_desk->conversation().turn(2);
    QStringList seen{turn.said, turn.semantic};
    QVERIFY(!turn.calls.isEmpty());
    for (const AbilityCall &call : turn.calls) {
        seen << call.parameters << call.answer;
    }
    for (const LogRecord &record : turn.logs) {
        seen << record.text;
    }
    const auto bubbles = m_desk->window().view()->findChildren<Bubble *>();
    for (const Bubble *bubble : bubbles) {
        seen << bubble->text();
    }
    for (const QString &text : qAsConst(seen)) {
        QVERIFY2(!text.contains(QLatin1String("246810")), qUtf8Printable(text));
    }
    QTest::keyClick(m_desk->window().input(), Qt::Key_Up);
    QCOMPARE(m_desk->window().input()->text(), QStringLiteral("加入会议880100002"));
}

void TestDesk::friendIsAdded()
{
    const QString requested =
        QStringLiteral("friend_request r JOIN person p ON p.user_id = r.person_id WHERE "
                       "r.owner_id = (SELECT user_id FROM session) AND p.account = '200001'");
    QCOMPARE(count(requested), 0);
    m_desk->say(QStringLiteral("添加好友200001"));
    QTRY_COMPARE(m_desk->lastText(), QStringLiteral("已成功发送好友申请。"));
    QCOMPARE(count(requested), 1);
}

void TestDesk::bubbleHasAMenu()
{
    QVERIFY(RealDesk::loadSample());
    const auto openMenu = [this] {
        const auto bubbles = m_desk->window().findChildren<Bubble *>();
        const auto last = std::find_if(bubbles.begin(), bubbles.end(), [this](const Bubble *bubble) {
            return bubble->isVisible() && bubble->text() == m_desk->lastText();
        });
        QContextMenuEvent wish(QContextMenuEvent::Mouse, QPoint(5, 5), (*last)->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(*last, &wish);
        return m_desk->window().findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
    };
    m_desk->say(QStringLiteral("查询今天的会议"));
    QMenu *menu = openMenu();
    QVERIFY(menu != nullptr);
    const QList<QAction *> actions = menu->actions();
    QCOMPARE(actions.size(), 5);
    actions.at(0)->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), m_desk->lastText());
    actions.at(1)->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("880100001"));
    actions.at(2)->trigger();
    QVERIFY(QGuiApplication::clipboard()->text().contains(QLatin1String("QUERY_CONFERENCE")));
    actions.at(4)->trigger();
    QTRY_COMPARE(m_desk->conversation().lastTurn(), 2);
    QTRY_VERIFY(!m_desk->conversation().isBusy());
    QCOMPARE(m_desk->lastTurn().said, QStringLiteral("查询今天的会议"));
    menu->close();
    QTRY_VERIFY(m_desk->window().findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly) == nullptr);
    // A password is not kept.
    m_desk->say(QStringLiteral("加入会议880100002"));
    m_desk->say(QStringLiteral("246810"));
    menu = openMenu();
    QVERIFY(menu != nullptr && !menu->actions().at(4)->isEnabled());
    menu->close();
}

void TestDesk::statusLineTellsTheConferenceAndLeavesIt()
{
    QVERIFY(RealDesk::loadSample());
    auto *conference = m_desk->window().findChild<QLabel *>(QStringLiteral("statusConference"));
    auto *leave = m_desk->window().findChild<QPushButton *>(QStringLiteral("statusLeave"));
    m_desk->say(QStringLiteral("查询今天的会议"));
    QTRY_VERIFY(!conference->isVisible() && !leave->isVisible());
    m_desk->say(QStringLiteral("加入我的会议"));
    QTRY_VERIFY(conference->isVisible() && leave->isVisible());
    QCOMPARE(conference->text(), QStringLiteral("会议中：部门早会　880100001"));
    QTest::mouseClick(leave, Qt::LeftButton);
    QTRY_COMPARE(m_desk->lastTurn().said, QStringLiteral("退出会议"));
    QTRY_VERIFY(!conference->isVisible() && !leave->isVisible());
    QCOMPARE(m_desk->lastTurn().code, 0);
}

void TestDesk::statusLineNeedsNoAdministration()
{
    QVERIFY(RealDesk::loadSample());
    const auto pid = [] {
        const QDBusReply<uint> found =
            QDBusConnection::sessionBus().interface()->servicePid(QStringLiteral("com.kelvane.meetlynx"));
        return found.isValid() ? qint64(found.value()) : 0;
    };
    // Run it as installed: without the developers' administration on the bus.
    kill(static_cast<pid_t>(pid()), SIGTERM);
    QTRY_COMPARE(pid(), 0);
    auto *account = m_desk->window().findChild<QLabel *>(QStringLiteral("statusAccount"));
    QTRY_COMPARE(account->text(), QStringLiteral("联系人应用未运行"));
    QProcess application;
    application.setProcessChannelMode(QProcess::ForwardedChannels);
    application.start(QStringLiteral(APPLICATION), {QStringLiteral("--service")});
    QTRY_COMPARE(pid(), application.processId());
    QTRY_COMPARE(account->text(), QStringLiteral("王小明（100001）"));
    auto *conference = m_desk->window().findChild<QLabel *>(QStringLiteral("statusConference"));
    QVERIFY(!conference->isVisible());
    m_desk->say(QStringLiteral("加入我的会议"));
    QTRY_COMPARE(conference->text(), QStringLiteral("会议中：部门早会　880100001"));
    auto *leave = m_desk->window().findChild<QPushButton *>(QStringLiteral("statusLeave"));
    QTRY_VERIFY(conference->isVisible() && leave->isVisible());
    QTest::mouseClick(leave, Qt::LeftButton);
    QTRY_VERIFY(!conference->isVisible() && !leave->isVisible());
    application.terminate();
    QVERIFY(application.waitForFinished());
    // The next request makes the bus start it again.
    QTRY_COMPARE(account->text(), QStringLiteral("联系人应用未运行"));
    m_desk->say(QStringLiteral("查询今天的会议"));
    QTRY_COMPARE(account->text(), QStringLiteral("王小明（100001）"));
}

void TestDesk::namesComeFromTheApplication()
{
    devhost::KnownNames names;
    const QStringList first = names.firstNames(5000);
    QVERIFY(first.contains(QStringLiteral("张伟")));
    QVERIFY(!first.contains(QStringLiteral("哆啦")));

    QSignalSpy changed(&names, &devhost::KnownNames::changed);
    const auto admin = [](const QString &method, const QVariantList &arguments) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            QStringLiteral("com.kelvane.meetlynx"), QStringLiteral("/com/kelvane/meetlynx/admin"),
            QStringLiteral("com.kelvane.meetlynx.Admin1"), method);
        call.setArguments(arguments);
        const QDBusReply<bool> done = QDBusConnection::sessionBus().call(call);
        return done.isValid() && done.value();
    };
    QVERIFY(admin(QStringLiteral("AddPerson"),
                  {QStringLiteral("dora"), QStringLiteral("开会王"), QStringLiteral("free")}));
    QVERIFY(admin(QStringLiteral("AddContact"), {QStringLiteral("100001"), QStringLiteral("dora"),
                                                 QStringLiteral("哆啦"), QStringLiteral("colleague")}));
    QTRY_VERIFY(!changed.isEmpty() && changed.last().first().toStringList().contains(QStringLiteral("哆啦")));
    QVERIFY(names.firstNames(0).contains(QStringLiteral("开会王")));
    QVERIFY(RealDesk::loadSample());
    QTRY_VERIFY(!changed.last().first().toStringList().contains(QStringLiteral("哆啦")));
}

QTEST_MAIN(TestDesk)
#include "tst_desk.moc"
