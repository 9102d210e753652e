// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "appearance.h"
#include "conversationview.h"
#include "inputline.h"
#include "logrecorder.h"
#include "mainwindow.h"
#include "redirectedfile.h"
#include "stallmeter.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <iostream>

using namespace devhost;

/**
 * The whole desk: the real window with the real plugin and the real application on a bus of its own, used as
 * a person would; what came of it is looked up in the application's database.
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
    void turnsAreFastAndTheWindowDoesNotStall();

private:
    void say(const QString &text);
    /// Clicks, and prints how long the window was busy with it.
    static void press(QPushButton *button);
    QString lastText() const;
    template <typename Control>
    Control *shown(const QString &text) const;
    static int count(const QString &sql);

    QTemporaryDir m_configuration;
    std::unique_ptr<RedirectedFile> m_redirected;
    std::unique_ptr<LogRecorder>
        m_logs; ///< made per test: the test framework takes the records for itself before
    std::unique_ptr<PluginHost> m_host;
    std::unique_ptr<Appearance> m_appearance;
    std::unique_ptr<Conversation> m_conversation;
    std::unique_ptr<MainWindow> m_window;
};

void TestDesk::initTestCase()
{
    QLoggingCategory::setFilterRules(AbilityCall::category() + QStringLiteral(".debug=true"));
    QFile file(m_configuration.filePath(QStringLiteral("plugin.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"Contact\":{\"TimeOut\":\"5000\",\"MaxTimeOut\":\"15000\"}}");
    file.close();
    m_redirected = std::make_unique<RedirectedFile>("/etc/xdg/kelvane-speakmate-plugins/contact-plugin.json",
                                                    file.fileName().toLocal8Bit());
    m_host = std::make_unique<PluginHost>();
    QVERIFY2(m_host->load(QStringLiteral(CONTACT_PLUGIN)), qUtf8Printable(m_host->problem().toText()));
    // The first request starts the application, and with it its database.
    init();
    say(QStringLiteral("查询今天的会议"));
    auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setDatabaseName(qEnvironmentVariable("XDG_DATA_HOME") +
                             QStringLiteral("/kelvane-contacts/contacts.db"));
    QVERIFY(database.open());
}

void TestDesk::init()
{
    m_window.reset();
    m_conversation.reset();
    m_logs.reset();
    m_logs = std::make_unique<LogRecorder>();
    m_appearance = std::make_unique<Appearance>();
    m_conversation = std::make_unique<Conversation>(*m_host, *m_logs);
    m_window = std::make_unique<MainWindow>(*m_conversation, *m_appearance);
    m_window->resize(1100, 900);
    m_window->show();
}

void TestDesk::say(const QString &text)
{
    m_window->input()->setText(text);
    QTest::keyClick(m_window->input(), Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(!m_conversation->isBusy(), 20000);
}

void TestDesk::press(QPushButton *button)
{
    const QByteArray text = button->text().toUtf8();
    QElapsedTimer timer;
    timer.start();
    QTest::mouseClick(button, Qt::LeftButton);
    std::cout << "button " << text.constData() << ": " << timer.elapsed() << " ms" << std::endl;
}

QString TestDesk::lastText() const
{
    const Bubble *last = nullptr;
    for (const Bubble *bubble : m_window->view()->findChildren<Bubble *>()) {
        if (bubble->isVisible() && (last == nullptr || bubble->y() > last->y())) {
            last = bubble;
        }
    }
    return last == nullptr ? QString() : last->text();
}

template <typename Control>
Control *TestDesk::shown(const QString &text) const
{
    for (Control *control : m_window->view()->findChildren<Control *>()) {
        if (control->isVisible() && control->text() == text) {
            return control;
        }
    }
    return nullptr;
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
    say(QStringLiteral("预约后天下午五点的视频会议，叫上张伟"));
    QCOMPARE(m_conversation->turn(1).code, -16003);
    QCOMPARE(count(QStringLiteral("conference")), before);
    QTRY_VERIFY(shown<QLabel>(QStringLiteral("市场部张伟")) != nullptr);
    QTest::mouseClick(shown<QLabel>(QStringLiteral("市场部张伟")), Qt::LeftButton);
    auto *confirm = shown<QPushButton>(QStringLiteral("确 认"));
    QVERIFY(confirm != nullptr && confirm->isEnabled());
    press(confirm);
    QTRY_VERIFY(m_window->view()->count() == 3);
    QCOMPARE(count(QStringLiteral("conference")), before + 1);
    QCOMPARE(count(created), 1);
}

void TestDesk::durationIsChangedOnTheCard()
{
    const QString twoHours = QStringLiteral("conference WHERE id > 9 AND duration_msecs = 7200000");
    QCOMPARE(count(twoHours), 0);
    say(QStringLiteral("预约大后天下午三点的视频会议"));
    QCOMPARE(m_conversation->turn(1).code, 0);
    QTRY_VERIFY(shown<QPushButton>(QStringLiteral("修 改")) != nullptr);
    QComboBox *duration = nullptr;
    for (auto *combo : m_window->view()->findChildren<QComboBox *>()) {
        if (combo->currentText() == QStringLiteral("1小时")) {
            duration = combo;
        }
    }
    QVERIFY(duration != nullptr);
    duration->setFocus();
    QTest::keyClick(duration, Qt::Key_Down);
    QCOMPARE(duration->currentText(), QStringLiteral("2小时"));
    press(shown<QPushButton>(QStringLiteral("修 改")));
    QTRY_VERIFY(m_window->view()->count() == 3);
    QCOMPARE(count(twoHours), 1);
}

void TestDesk::conferenceIsCancelledOnTheCard()
{
    const int before = count(QStringLiteral("conference"));
    say(QStringLiteral("预约大后天晚上八点的视频会议"));
    QCOMPARE(count(QStringLiteral("conference")), before + 1);
    QTRY_VERIFY(shown<QPushButton>(QStringLiteral("取 消")) != nullptr);
    press(shown<QPushButton>(QStringLiteral("取 消")));
    QTRY_VERIFY(m_window->view()->count() == 3);
    QCOMPARE(count(QStringLiteral("conference")), before);
}

void TestDesk::queryShowsACard()
{
    say(QStringLiteral("查询今天的会议"));
    QCOMPARE(m_conversation->turn(1).type, 11);
    QCOMPARE(m_conversation->turn(1).cardClass, QStringLiteral("ConferenceMsgStaticWidget"));
    QTRY_VERIFY(shown<QLabel>(QStringLiteral("部门早会")) != nullptr);
    QCOMPARE(m_conversation->turn(1).calls.size(), 1);
    QCOMPARE(m_conversation->turn(1).calls.first().action, QStringLiteral("Search Conference"));
}

void TestDesk::conferenceIsJoinedWithAPasswordInTwoTurns()
{
    const QString inside =
        QStringLiteral("participant p JOIN conference c ON c.id = p.conference_id WHERE "
                       "c.dial_number = '880100002' AND p.user_id = (SELECT user_id FROM session)");
    QCOMPARE(count(inside), 0);
    say(QStringLiteral("加入会议880100002"));
    QCOMPARE(lastText(), QStringLiteral("请输入密码:"));
    QCOMPARE(m_window->input()->echoMode(), QLineEdit::Password);
    say(QStringLiteral("246810"));
    QTRY_COMPARE(lastText(), QStringLiteral("好的，您已成功加入会议。"));
    QCOMPARE(count(inside), 1);
    QCOMPARE(m_window->input()->echoMode(), QLineEdit::Normal);
    // The password is nowhere to be seen.
    const Turn turn = m_conversation->turn(2);
    QStringList seen{turn.said, turn.semantic};
    QVERIFY(!turn.calls.isEmpty());
    for (const AbilityCall &call : turn.calls) {
        seen << call.parameters << call.answer;
    }
    for (const LogRecord &record : turn.logs) {
        seen << record.text;
    }
    for (const Bubble *bubble : m_window->view()->findChildren<Bubble *>()) {
        seen << bubble->text();
    }
    for (const QString &text : qAsConst(seen)) {
        QVERIFY2(!text.contains(QLatin1String("246810")), qUtf8Printable(text));
    }
    QTest::keyClick(m_window->input(), Qt::Key_Up);
    QCOMPARE(m_window->input()->text(), QStringLiteral("加入会议880100002"));
}

void TestDesk::friendIsAdded()
{
    const QString requested =
        QStringLiteral("friend_request r JOIN person p ON p.user_id = r.person_id WHERE "
                       "r.owner_id = (SELECT user_id FROM session) AND p.account = '200001'");
    QCOMPARE(count(requested), 0);
    say(QStringLiteral("添加好友200001"));
    QTRY_COMPARE(lastText(), QStringLiteral("已成功发送好友申请。"));
    QCOMPARE(count(requested), 1);
}

void TestDesk::turnsAreFastAndTheWindowDoesNotStall()
{
    constexpr int turns = 200;
    QVector<double> understanding, plugin, request, reply, paint, total;
    QElapsedTimer sinceEnter;
    qint64 replied = 0;
    connect(m_conversation.get(), &Conversation::replied, m_window.get(),
            [&] { replied = sinceEnter.nsecsElapsed(); });
    StallMeter meter;
    for (int i = 1; i <= turns; ++i) {
        sinceEnter.start();
        say(QStringLiteral("查询今天的会议"));
        QTRY_VERIFY(m_window->lastPaintMsecs() > 0);
        total << double(replied) / 1e6 + m_window->lastPaintMsecs();
        const Turn turn = m_conversation->turn(i);
        QCOMPARE(turn.code, 0);
        QCOMPARE(turn.calls.size(), 1);
        understanding << turn.understandingMsecs;
        plugin << turn.serviceMsecs - turn.requestMsecs();
        request << turn.requestMsecs();
        reply << turn.replyMsecs;
        paint << m_window->lastPaintMsecs();
    }
    const auto figure = [](QVector<double> values) {
        std::sort(values.begin(), values.end());
        return QStringLiteral("median %1 ms, slowest %2 ms")
            .arg(values.at(values.size() / 2), 0, 'f', 2)
            .arg(values.last(), 0, 'f', 2);
    };
    std::cout << "understanding:            " << qUtf8Printable(figure(understanding)) << std::endl;
    std::cout << "plugin and process check: " << qUtf8Printable(figure(plugin)) << std::endl;
    std::cout << "request:                  " << qUtf8Printable(figure(request)) << std::endl;
    std::cout << "reply and card:           " << qUtf8Printable(figure(reply)) << std::endl;
    std::cout << "showing and painting:     " << qUtf8Printable(figure(paint)) << std::endl;
    std::cout << "Enter to screen:          " << qUtf8Printable(figure(total)) << std::endl;
    std::cout << "longest stall:            " << meter.longestMsecs() << " ms" << std::endl;
    QVERIFY2(meter.longestMsecs() < 1000, qPrintable(QString::number(meter.longestMsecs())));
}

QTEST_MAIN(TestDesk)
#include "tst_desk.moc"
