// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launcherdesk.h"
#include "notificationserver.h"
#include "realdesk.h"

using namespace devhost;

/// From a launcher to the real plugin and the real application, on 21 November 2026.
class TestLauncherConference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sentenceBooksTheConferenceAndShowsItsCard();
};

void TestLauncherConference::sentenceBooksTheConferenceAndShowsItsCard()
{
    QVERIFY(RealDesk::loadSample());
    NotificationServer notifications;
    notifications.listenTo(QStringLiteral("语音助手"));
    LogRecorder logs;
    Conversation conversation(RealDesk::host(), logs);
    LauncherDesk desk(conversation, QDBusConnection::sessionBus());
    const auto run = [&](const QString &sentence) {
        const LauncherAct act = desk.match(sentence);
        desk.run(act.id, LauncherDesk::Place::WhereItFits);
        QTRY_VERIFY_WITH_TIMEOUT(!conversation.isBusy(), 20000);
    };
    const auto lastTurn = [&conversation] {
        return conversation.turn(conversation.lastTurn());
    };

    run(QStringLiteral("明天下午三点和孙丽开会"));
    QCOMPARE(lastTurn().failure, QString());
    QCOMPARE(lastTurn().code, 0);
    QCOMPARE(lastTurn().display, QStringLiteral("好的，为您预约如下。"));
    QVERIFY(!lastTurn().cardClass.isEmpty());
    QTRY_VERIFY(QApplication::activeWindow() != nullptr);
    QCOMPARE(notifications.shown.size(), 0);

    // The application has it at the time named by the line.
    run(QStringLiteral("查询明天的会议"));
    QCOMPARE(lastTurn().calls.size(), 1);
    const QJsonObject answer = QJsonDocument::fromJson(lastTurn().calls.first().answer.toUtf8()).object();
    const QByteArray told = QJsonDocument(answer).toJson();
    const qint64 start = QDateTime(QDate(2026, 11, 22), QTime(15, 0)).toMSecsSinceEpoch();
    QVERIFY2(told.contains(QByteArray::number(start)), told.constData());
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        window->close();
    }

    // A text without a card becomes a notification.
    run(QStringLiteral("结束会议"));
    QTRY_COMPARE(notifications.shown.size(), 1);
    QCOMPARE(notifications.last().summary, QStringLiteral("退出当前的视频会议"));
    QCOMPARE(notifications.last().body, QStringLiteral("您没有正在开始的视频会议。"));
}

QTEST_MAIN(TestLauncherConference)
#include "tst_launcherconference.moc"
