// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "plugindesk.h"
#include "stallmeter.h"

#include <QtTest>
#include <QtWidgets>

using namespace devhost;

/// The window, driven as a user would, with a plugin that answers slowly, late and with cards.
class TestMainWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void exampleIsSentByAClick();
    void windowStaysAliveWhileARequestRuns();
    void laterInputQueuesAndAnswersStandWithTheirTurn();
    void cardIsLiveAndItsReplyStandsBelow();
    void viewStaysAtTheEndUnlessTheUserScrolledUp();
    void newConversationBeginsAtTheWelcomePage();
    void applicationThatDoesNotRunIsSaid();
    void windowRemembersItself();
    void titleNamesTheProgramOnce();
    void problemIsShown();
    void namesAreShownWithoutWhatHides();
};

void TestMainWindow::exampleIsSentByAClick()
{
    PluginDesk desk;
    QVERIFY(desk.isLoaded);
    auto *example = desk.window.findChild<QPushButton *>(QStringLiteral("example"));
    QVERIFY(example != nullptr && example->isVisible());
    QTest::mouseClick(example, Qt::LeftButton);
    QTRY_VERIFY(desk.isIdle() && desk.shownTexts().size() == 2);
    QCOMPARE(desk.shownTexts().constFirst(), example->text());
    QVERIFY(!example->isVisible());
}

void TestMainWindow::windowStaysAliveWhileARequestRuns()
{
    PluginDesk desk;
    const QTemporaryDir folder;
    const QString gate = folder.filePath(QStringLiteral("go"));
    desk.type(semantic("WAIT", gate));
    QTRY_VERIFY(desk.window.view()->isWaiting());
    StallMeter meter;
    // Typing still works.
    QTest::keyClicks(desk.window.input(), QStringLiteral("abcdefghij"));
    int ticks = 0;
    QTimer ticker;
    connect(&ticker, &QTimer::timeout, this, [&ticks] { ++ticks; });
    ticker.start(5);
    QTRY_VERIFY(ticks > 40);
    QVERIFY(desk.window.view()->isWaiting());
    QVERIFY2(meter.longestMsecs() < 150, qPrintable(QString::number(meter.longestMsecs())));
    QCOMPARE(desk.window.input()->text(), QStringLiteral("abcdefghij"));
    QFile go(gate);
    QVERIFY(go.open(QIODevice::WriteOnly));
    go.close();
    QTRY_VERIFY(desk.isIdle());
    QVERIFY(!desk.window.view()->isWaiting());
}

void TestMainWindow::laterInputQueuesAndAnswersStandWithTheirTurn()
{
    PluginDesk desk;
    desk.type(semantic("SLOW", QStringLiteral("60")));
    desk.type(semantic("ECHO", QStringLiteral("zwei")));
    desk.type(semantic("ECHO", QStringLiteral("drei")));
    QTRY_COMPARE(desk.shownTexts().size(), 3);
    QTRY_VERIFY(desk.isIdle() && desk.shownTexts().size() == 6);
    QCOMPARE(desk.shownTexts(), QStringList({QStringLiteral("语义 JSON SLOW"), QStringLiteral("60"),
                                             QStringLiteral("语义 JSON ECHO"), QStringLiteral("zwei"),
                                             QStringLiteral("语义 JSON ECHO"), QStringLiteral("drei")}));
}

void TestMainWindow::cardIsLiveAndItsReplyStandsBelow()
{
    PluginDesk desk;
    desk.type(semantic("CARD", QStringLiteral("卡片")));
    QPushButton *button = nullptr;
    const auto findButton = [&] {
        const auto buttons = desk.window.view()->findChildren<QPushButton *>();
        for (auto *found : buttons) {
            if (found->text() == QStringLiteral("按我")) {
                button = found;
            }
        }
        return button != nullptr && button->isVisible();
    };
    QTRY_VERIFY(findButton());
    QWidget *card = button->parentWidget();
    const int heightBefore = card->height();
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(desk.shownTexts().value(2), QStringLiteral("按过了"));
    QTRY_VERIFY(card->height() >= heightBefore + 200);
    const auto bubbles = desk.window.view()->findChildren<Bubble *>();
    for (const Bubble *bubble : bubbles) {
        if (bubble->text() == QStringLiteral("按过了")) {
            QTRY_VERIFY(bubble->y() >= card->geometry().bottom());
        }
    }
    // A card that deletes itself leaves no hole and no dangling pointer.
    delete card;
    desk.type(semantic("ECHO", QStringLiteral("weiter")));
    QTRY_VERIFY(desk.shownTexts().contains(QStringLiteral("weiter")));
}

void TestMainWindow::viewStaysAtTheEndUnlessTheUserScrolledUp()
{
    PluginDesk desk;
    ConversationView *view = desk.window.view();
    for (int i = 0; i < 40; ++i) {
        desk.type(semantic("ECHO", QStringLiteral("Antwort %1").arg(i)));
    }
    QTRY_VERIFY(desk.isIdle() && view->count() == 80);
    QVERIFY(view->isAtEnd());
    QVERIFY(desk.shownTexts().contains(QStringLiteral("Antwort 39")));

    view->verticalScrollBar()->setValue(200);
    const QStringList before = desk.shownTexts();
    view->addReply(40, QStringLiteral("spät"), nullptr);
    QCOMPARE(view->verticalScrollBar()->value(), 200);
    QCOMPARE(desk.shownTexts(), before);

    // The user's own input scrolls back to the end.
    desk.type(semantic("ECHO", QStringLiteral("Ende")));
    QTRY_VERIFY(desk.shownTexts().contains(QStringLiteral("Ende")));
    QVERIFY(view->isAtEnd());
    view->verticalScrollBar()->setValue(0);
    QTest::keyClick(view, Qt::Key_End);
    QVERIFY(view->isAtEnd());
}

void TestMainWindow::newConversationBeginsAtTheWelcomePage()
{
    PluginDesk desk;
    desk.type(semantic("CARD", QStringLiteral("a")));
    QTRY_VERIFY(desk.isIdle() && desk.window.view()->count() == 2);
    auto *example = desk.window.findChild<QPushButton *>(QStringLiteral("example"));
    QVERIFY(!example->isVisible());
    QTest::keyClick(&desk.window, Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(desk.window.view()->count(), 0);
    QVERIFY(example->isVisible());
    QVERIFY(desk.shownTexts().isEmpty());
    QCOMPARE(desk.conversation.turn(1).id, 0);
    desk.type(semantic("ECHO", QStringLiteral("b")));
    QTRY_VERIFY(desk.isIdle() && desk.shownTexts().size() == 2);
}

void TestMainWindow::applicationThatDoesNotRunIsSaid()
{
    PluginDesk desk;
    auto *account = desk.window.findChild<QLabel *>(QStringLiteral("statusAccount"));
    QVERIFY(account->isVisible());
    QCOMPARE(account->text(), QStringLiteral("联系人应用未运行"));
    QVERIFY(!desk.window.findChild<QPushButton *>(QStringLiteral("statusLeave"))->isVisible());
}

void TestMainWindow::windowRemembersItself()
{
    {
        PluginDesk desk;
        desk.window.resize(777, 555);
        desk.window.close();
    }
    LogRecorder logs;
    PluginHost host;
    Appearance appearance;
    Conversation conversation(host, logs);
    const MainWindow window(conversation, appearance);
    QCOMPARE(window.size(), QSize(777, 555));
}

void TestMainWindow::titleNamesTheProgramOnce()
{
    const PluginDesk desk;
    const QString title = desk.window.windowTitle();
    // main() sets this display name, which Qt appends to titles that don't end with it.
    const QString program = QCoreApplication::translate("devhost::HostApplication", "Voice Assistant");
    QVERIFY2(title.endsWith(program), qPrintable(title));
    QCOMPARE(title.count(program), 1);
}

void TestMainWindow::problemIsShown()
{
    PluginDesk desk;
    auto *problem = desk.window.findChild<QLabel *>(QStringLiteral("problem"));
    QVERIFY(!problem->isVisible());
    desk.window.showProblem(QStringLiteral("<b>没有插件</b>"));
    QVERIFY(problem->isVisible());
    QCOMPARE(problem->text(), QStringLiteral("<b>没有插件</b>"));
    QCOMPARE(problem->textFormat(), Qt::PlainText);
}

void TestMainWindow::namesAreShownWithoutWhatHides()
{
    PluginDesk desk;
    desk.type(semantic("ECHO", QStringLiteral("a\u202eb")));
    QTRY_COMPARE(desk.shownTexts().value(1), QStringLiteral("ab"));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
