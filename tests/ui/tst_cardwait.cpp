// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "paintcounter.h"
#include "testcolumns.h"

#include <lumo/lspinbox.h>

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace CardSamples;

/// A button blocks its window until the contacts application has answered: what can be seen meanwhile.
class TestCardWait : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsSeenThatAButtonWaits_data();
    void itIsSeenThatAButtonWaits();
    void theConfirmButtonSaysThatItWaits();
    void theNewValuesArePaintedBeforeTheAnswer();
    void theCursorIsRestoredWhenTheCardIsDeletedMeanwhile_data();
    void theCursorIsRestoredWhenTheCardIsDeletedMeanwhile();
    void theCursorIsRestoredBeforeTheReplyIsHeard();
    void theCursorIsRestoredAfterAnException();
};

namespace {

using Ask = void (*)(ConferenceMsgStaticWidget &);

bool isWaitCursor()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

void addCards()
{
    addColumns<Build, Ask>({"build", "ask"});
    QTest::newRow("modify") << Build(buildEdited) << Ask([](ConferenceMsgStaticWidget &card) {
        Q_EMIT button(card, QStringLiteral("修 改"))->clicked();
    });
    QTest::newRow("cancel") << Build(buildEdited) << Ask([](ConferenceMsgStaticWidget &card) {
        Q_EMIT button(card, QStringLiteral("取 消"))->clicked();
    });
    const Ask confirm = [](ConferenceMsgStaticWidget &card) {
        Q_EMIT button(card, QStringLiteral("确 认"))->clicked();
    };
    QTest::newRow("create") << Build([](ConferenceMsgStaticWidget &card) {
        card.createMultiplePerson(createdDetail(), true);
    }) << confirm;
    QTest::newRow("invite") << Build([](ConferenceMsgStaticWidget &card) {
        card.inviteMultiplePerson(inviteDetail());
    }) << confirm;
    QTest::newRow("within limit") << Build([](ConferenceMsgStaticWidget &card) {
        card.invitePersonLimit(inviteDetail());
    }) << confirm;
    QTest::newRow("open the contacts")
        << Build([](ConferenceMsgStaticWidget &card) { card.multipleInit(conferences(4)); })
        << Ask([](ConferenceMsgStaticWidget &card) { card.openContactApp(); });
}

} // namespace

void TestCardWait::itIsSeenThatAButtonWaits_data()
{
    addCards();
}

void TestCardWait::itIsSeenThatAButtonWaits()
{
    QFETCH(Build, build);
    QFETCH(Ask, ask);
    CardHost host(build);
    QVERIFY(host.activate());
    const PaintCounter paints(host.card());
    bool isWaiting = false;
    int paintsBeforeTheCall = 0;
    ScriptedAbility::instance().duringNextRequest([&] {
        isWaiting = isWaitCursor();
        paintsBeforeTheCall = paints.count();
    });
    QVERIFY(!isWaitCursor());
    ask(*host.card());
    QVERIFY(isWaiting);
    QCOMPARE(paintsBeforeTheCall, 1);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestCardWait::theConfirmButtonSaysThatItWaits()
{
    CardHost host;
    host.card()->inviteMultiplePerson(inviteDetail());
    QVERIFY(host.activate());
    QPushButton *confirm = button(*host.card(), QStringLiteral("确 认"));
    const QImage before = confirm->grab().toImage();
    const PaintCounter paints(confirm);
    QString text;
    int paintsBeforeTheCall = 0;
    QImage during;
    ScriptedAbility::instance().duringNextRequest([&] {
        paintsBeforeTheCall = paints.count();
        text = confirm->text();
        during = confirm->grab().toImage();
    });
    Q_EMIT confirm->clicked();
    QCOMPARE(text, QStringLiteral("请稍候…"));
    QCOMPARE(paintsBeforeTheCall, 1);
    QVERIFY(during != before);
    QCOMPARE(host.replies().size(), 1);
}

void TestCardWait::theNewValuesArePaintedBeforeTheAnswer()
{
    CardHost host(buildEdited);
    QVERIFY(host.activate());
    QStringList painted;
    ScriptedAbility::instance().duringNextRequest([&] {
        const auto labels = shown<QLabel>(*host.card());
        for (const QLabel *label : labels) {
            // Only an activated layout has moved the label to its place.
            if (host.card()->rect().contains(QRect(label->mapTo(host.card(), QPoint()), label->size()))) {
                painted.append(label->text());
            }
        }
    });
    Q_EMIT button(*host.card(), QStringLiteral("修 改"))->clicked();
    QVERIFY2(painted.contains(QStringLiteral("7人")), qPrintable(painted.join(QLatin1Char('|'))));
}

void TestCardWait::theCursorIsRestoredWhenTheCardIsDeletedMeanwhile_data()
{
    addCards();
}

void TestCardWait::theCursorIsRestoredWhenTheCardIsDeletedMeanwhile()
{
    QFETCH(Build, build);
    QFETCH(Ask, ask);
    CardHost host(build);
    QVERIFY(host.activate());
    ScriptedAbility::instance().duringNextRequest([&host] { delete host.card(); });
    ask(*host.card());
    QVERIFY(host.card() == nullptr);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestCardWait::theCursorIsRestoredBeforeTheReplyIsHeard()
{
    CardHost host;
    host.card()->inviteMultiplePerson(inviteDetail());
    bool isWaiting = true;
    connect(host.card(), &ConferenceMsgStaticWidget::signalSendShowMessgae, this,
            [&isWaiting] { isWaiting = isWaitCursor(); });
    host.card()->slotInviteMultipleSelectBtn();
    QVERIFY(!isWaiting);
}

void TestCardWait::theCursorIsRestoredAfterAnException()
{
    CardHost host;
    host.card()->inviteMultiplePerson(inviteDetail());
    ScriptedAbility::instance().throwFromNextRequest("no answer");
    host.log().expect(QtWarningMsg,
                      QStringLiteral("The contact ability failed: \"Invite Members\" no answer"));
    host.card()->slotInviteMultipleSelectBtn();
    QCOMPARE(host.replyTexts(), QStringList{QStringLiteral("抱歉无法为您邀请。")});
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

QTEST_MAIN(TestCardWait)
#include "tst_cardwait.moc"
