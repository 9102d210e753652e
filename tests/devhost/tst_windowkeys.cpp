// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "endbutton.h"
#include "inspector.h"
#include "plugindesk.h"

#include <QtTest>
#include <QtWidgets>

using namespace devhost;

namespace {

/// Activates the window and has @p count turns answered with one card each.
bool showsCards(PluginDesk &desk, int count)
{
    desk.window.activateWindow();
    if (!QTest::qWaitForWindowActive(&desk.window)) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        desk.type(semantic("CARD", QStringLiteral("卡片")));
    }
    return QTest::qWaitFor([&] { return desk.isIdle() && desk.view().count() == 2 * count; });
}

} // namespace

/// Keys, focus, and the button that leads back to the end.
class TestWindowKeys : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void keysGoThroughTheHistoryAndClearTheLine();
    void pageKeysScrollFromTheInput();
    void tabGoesAsOneReads();
    void focusReturnsToTheInputAfterACardsButton();
    void buttonToTheEndIsOpaqueAndAtTheSide();
    void buttonToTheEndLeadsThereFromCards();
};

void TestWindowKeys::keysGoThroughTheHistoryAndClearTheLine()
{
    PluginDesk desk;
    InputLine *input = desk.window.input();
    // Plain sentences: unlike semantic JSON, they are shown as typed.
    desk.type(QStringLiteral("第一句"));
    desk.type(QStringLiteral("第二句"));
    input->setText(QStringLiteral("开始"));
    QTest::keyClick(input, Qt::Key_Up);
    QCOMPARE(input->text(), QStringLiteral("第二句"));
    QTest::keyClick(input, Qt::Key_Up);
    QCOMPARE(input->text(), QStringLiteral("第一句"));
    QTest::keyClick(input, Qt::Key_Down);
    QTest::keyClick(input, Qt::Key_Down);
    QCOMPARE(input->text(), QStringLiteral("开始"));
    QTest::keyClick(input, Qt::Key_Escape);
    QVERIFY(input->text().isEmpty());
    QTRY_VERIFY(desk.isIdle());
    const int turns = desk.conversation.lastTurn();
    QTest::keyClick(input, Qt::Key_Return);
    QCOMPARE(desk.conversation.lastTurn(), turns);
}

void TestWindowKeys::pageKeysScrollFromTheInput()
{
    PluginDesk desk;
    for (int i = 0; i < 40; ++i) {
        desk.window.view()->addReply(1, QStringLiteral("第 %1 句").arg(i), nullptr);
    }
    auto *bar = desk.window.view()->verticalScrollBar();
    desk.window.view()->scrollToEnd();
    const int end = bar->maximum();
    QVERIFY(end > 0);
    QTest::keyClick(desk.window.input(), Qt::Key_PageUp);
    QCOMPARE(bar->value(), qMax(0, end - bar->pageStep()));
    QTest::keyClick(desk.window.input(), Qt::Key_PageDown);
    QCOMPARE(bar->value(), end);
}

void TestWindowKeys::tabGoesAsOneReads()
{
    PluginDesk desk;
    QVERIFY(showsCards(desk, 4));
    ConversationView *view = desk.window.view();
    view->setFocus();
    QWidgetList visited;
    do {
        visited.append(QApplication::focusWidget());
        QTest::keyClick(desk.window.windowHandle(), Qt::Key_Tab);
    } while (visited.size() < 40 && QApplication::focusWidget() != view);
    QCOMPARE(QApplication::focusWidget(), view);
    // The four cards' buttons from the top, the input, the button beside it, then the inspector.
    for (int i = 1; i <= 4; ++i) {
        QCOMPARE(visited.at(i)->parentWidget(), view->entries().at(2 * i - 1).card.data());
    }
    QCOMPARE(visited.at(5), desk.window.input());
    QVERIFY(qobject_cast<QPushButton *>(visited.at(6)) != nullptr);
    QVERIFY(visited.size() > 8);
    for (int i = 7; i < visited.size(); ++i) {
        QVERIFY2(desk.window.inspector()->isAncestorOf(visited.at(i)),
                 visited.at(i)->metaObject()->className());
    }
    // And back.
    for (int i = visited.size() - 1; i >= 0; --i) {
        QTest::keyClick(desk.window.windowHandle(), Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), visited.at(i));
    }
}

void TestWindowKeys::focusReturnsToTheInputAfterACardsButton()
{
    PluginDesk desk;
    QVERIFY(showsCards(desk, 1));
    auto *button = desk.window.view()->entries().at(1).card->findChild<QPushButton *>();
    // The button may disable its card, as a cancellation does, which takes the focus away from it.
    connect(button, &QPushButton::clicked, button, [button] { button->parentWidget()->setEnabled(false); });
    button->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button, Qt::Key_Space);
    QTRY_COMPARE(desk.window.view()->count(), 3);
    QTRY_COMPARE(QApplication::focusWidget(), desk.window.input());
}

void TestWindowKeys::buttonToTheEndIsOpaqueAndAtTheSide()
{
    PluginDesk desk;
    desk.type(semantic("ECHO", QStringLiteral("a")));
    QTRY_VERIFY(desk.isIdle());
    ConversationView *view = desk.window.view();
    for (int i = 0; i < 40; ++i) {
        view->addSaid(1, QStringLiteral("这一句话足够长，会在按钮下面经过，第 %1 句").arg(i), false);
    }
    auto *button = view->findChild<EndButton *>();
    QVERIFY(!button->isVisible());
    QTest::keyClick(desk.window.input(), Qt::Key_PageUp);
    QVERIFY(button->isVisible());
    const QImage picture = desk.window.grab().toImage();
    const QColor plate = button->palette().color(QPalette::Button);
    const QRect place(button->mapTo(&desk.window, QPoint()), button->size());
    QCOMPARE(picture.pixelColor(place.center() + QPoint(-12, 0)), plate);
    QCOMPARE(picture.pixelColor(place.center() + QPoint(12, 0)), plate);
    // It is round: its corners show what lies below.
    QVERIFY(picture.pixelColor(place.topLeft() + QPoint(1, 1)) != plate);
    QVERIFY(button->x() > view->width() * 3 / 4);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(view->isAtEnd() && !button->isVisible());
}

/// The button used to take the focus and hide, which moved the focus and the view to the first card.
void TestWindowKeys::buttonToTheEndLeadsThereFromCards()
{
    PluginDesk desk;
    QVERIFY(showsCards(desk, 12));
    ConversationView *view = desk.window.view();
    auto *button = view->findChild<EndButton *>();
    const auto goesToTheEnd = [&] {
        view->verticalScrollBar()->setValue(0);
        QTest::mouseClick(button, Qt::LeftButton);
        return view->isAtEnd() && !button->isVisible();
    };
    QVERIFY(desk.window.input()->hasFocus());
    QVERIFY(goesToTheEnd());
    // The view has the focus, as after a click beside the cards.
    QVERIFY(view->hasFocus());
    // The same from the button itself, which a screen reader may have focused.
    view->verticalScrollBar()->setValue(0);
    button->setFocus();
    QVERIFY(button->hasFocus());
    QVERIFY(goesToTheEnd());
    QVERIFY(!view->isAncestorOf(QApplication::focusWidget()));
    // A focused card that scrolls out of sight doesn't pull the view back.
    view->entries().at(1).card->findChild<QPushButton *>()->setFocus();
    QVERIFY(goesToTheEnd());
    QVERIFY(view->hasFocus());
}

QTEST_MAIN(TestWindowKeys)
#include "tst_windowkeys.moc"
