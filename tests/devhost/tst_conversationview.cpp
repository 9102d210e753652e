// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bubble.h"
#include "conversationview.h"
#include "shownview.h"
#include "styledtest.h"
#include "turnbutton.h"

#include <QtTest>
#include <QtWidgets>

using namespace devhost;

namespace {

Bubble *bubbleWith(const ConversationView &view, const QString &text)
{
    const auto bubbles = view.findChildren<Bubble *>();
    for (Bubble *bubble : bubbles) {
        if (bubble->isVisible() && bubble->text() == text) {
            return bubble;
        }
    }
    return nullptr;
}

} // namespace

/// The conversation view alone: reading it with eyes, keyboard and assistive tools.
class TestConversationView : public StyledTest
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsGoFromBubbleToBubble();
    void menuOpensByItsButtonAndByItsKey();
    void menuButtonsComeBackWithTheWindow();
    void assistiveToolsReadTheConversation();
};

void TestConversationView::arrowsGoFromBubbleToBubble()
{
    ShownView shown(500, 300);
    QVERIFY(shown.activate());
    ConversationView &view = shown.view;
    for (int turn = 1; turn <= 30; ++turn) {
        view.addSaid(turn, QStringLiteral("第 %1 句").arg(turn), false);
    }
    view.clearFocus();
    view.setFocus(Qt::TabFocusReason);
    const QString last = QStringLiteral("第 30 句");
    QCOMPARE(view.entries().at(view.keyboard().currentPosition()).text, last);
    const QImage ringed = bubbleWith(view, last)->grab().toImage();
    QTest::keyClick(&view, Qt::Key_Up);
    QCOMPARE(view.entries().at(view.keyboard().currentPosition()).text, QStringLiteral("第 29 句"));
    // The focus ring is visible and has moved on.
    QVERIFY(bubbleWith(view, last)->grab().toImage() != ringed);
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(&view, Qt::Key_Up);
    }
    QCOMPARE(view.keyboard().currentPosition(), 0);
    QVERIFY(bubbleWith(view, QStringLiteral("第 1 句")) != nullptr);
    const QSignalSpy activated(&view, &ConversationView::turnActivated);
    QTest::keyClick(&view, Qt::Key_Return);
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.first().first().toInt(), 1);
    // What it does itself goes no further, to a default button, for instance.
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_Down, Qt::Key_Return,
                              Qt::Key_Enter, Qt::Key_Space}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&view, &press);
        QVERIFY2(press.isAccepted(), qPrintable(QKeySequence(key).toString()));
    }
    QKeyEvent other(QEvent::KeyPress, Qt::Key_F7, Qt::NoModifier);
    QApplication::sendEvent(&view, &other);
    QVERIFY(!other.isAccepted());
}

void TestConversationView::menuOpensByItsButtonAndByItsKey()
{
    ShownView shown(500, 300);
    QVERIFY(shown.activate());
    ConversationView &view = shown.view;
    view.addSaid(1, QStringLiteral("问"), false);
    view.addReply(1, QStringLiteral("答"), nullptr);
    QSignalSpy wanted(&view, &ConversationView::turnMenuWanted);

    const Bubble *said = bubbleWith(view, QStringLiteral("问"));
    const auto buttons = view.findChildren<TurnButton *>();
    for (TurnButton *button : buttons) {
        QVERIFY(view.viewport()->rect().contains(button->geometry()));
        if (button->isVisible() && button->geometry().center().y() < said->geometry().bottom()) {
            QVERIFY(button->geometry().right() < said->x());
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.takeFirst().at(1).toString(), QStringLiteral("问"));

    view.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Up);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint());
    QApplication::sendEvent(&view, &key);
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.first().at(1).toString(), QStringLiteral("问"));
}

/// They used to be hidden with the window and stay hidden until the user scrolled.
void TestConversationView::menuButtonsComeBackWithTheWindow()
{
    ShownView shown(500, 300);
    ConversationView &view = shown.view;
    for (int turn = 1; turn <= 30; ++turn) {
        view.addSaid(turn, QStringLiteral("第 %1 句").arg(turn), false);
    }
    const auto shownButtons = [&view] {
        const auto buttons = view.findChildren<TurnButton *>();
        return int(std::count_if(buttons.begin(), buttons.end(),
                                 [](const TurnButton *button) { return button->isVisible(); }));
    };
    const int before = shownButtons();
    QVERIFY(before > 1);
    view.hide();
    QCOMPARE(shownButtons(), 0);
    view.show();
    QCOMPARE(shownButtons(), before);
    // A bubble that goes takes its button along.
    view.clear();
    QCOMPARE(shownButtons(), 0);
}

void TestConversationView::assistiveToolsReadTheConversation()
{
    ShownView shown(500, 300);
    ConversationView &view = shown.view;
    for (int turn = 1; turn <= 30; ++turn) {
        view.addSaid(turn, QStringLiteral("问 %1").arg(turn), false);
        view.addReply(turn, QStringLiteral("答 %1").arg(turn), turn == 2 ? new QPushButton : nullptr);
    }
    view.addReply(1, QStringLiteral("晚答"), nullptr);
    QAccessibleInterface *page = QAccessible::queryAccessibleInterface(view.viewport());
    QCOMPARE(page->role(), QAccessible::List);
    QCOMPARE(page->text(QAccessible::Name), QStringLiteral("对话"));
    QCOMPARE(page->childCount(), 62);
    const QStringList begins = {QStringLiteral("问 1"), QStringLiteral("答 1"), QStringLiteral("晚答"),
                                QStringLiteral("问 2"), QStringLiteral("答 2")};
    for (int i = 0; i < begins.size(); ++i) {
        QAccessibleInterface *item = page->child(i);
        QCOMPARE(item->role(), QAccessible::ListItem);
        QCOMPARE(item->text(QAccessible::Name), begins.at(i));
        QCOMPARE(item->parent(), page);
        QCOMPARE(page->indexOfChild(item), i);
    }
    QCOMPARE(page->child(0)->text(QAccessible::Description), QStringLiteral("我说的"));
    QCOMPARE(page->child(1)->text(QAccessible::Description), QStringLiteral("助手的回答"));
    QCOMPARE(page->child(5)->object(), view.entries().at(4).card.data());
    QVERIFY(page->child(0)->state().offscreen && !page->child(61)->state().offscreen);
    const QRect last = page->child(61)->rect();
    QCOMPARE(page->childAt(last.center().x(), last.center().y()), page->child(61));

    const QSignalSpy activated(&view, &ConversationView::turnActivated);
    const QSignalSpy menus(&view, &ConversationView::turnMenuWanted);
    QAccessibleActionInterface *actions = page->child(3)->actionInterface();
    actions->doAction(QAccessibleActionInterface::pressAction());
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.first().first().toInt(), 2);
    QCOMPARE(menus.size(), 1);
}

QTEST_MAIN(TestConversationView)
#include "tst_conversationview.moc"
