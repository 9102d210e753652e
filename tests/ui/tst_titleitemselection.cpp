// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "confirmkeys.h"
#include "testcolumns.h"
#include "titleitem.h"
#include "titleitemtest.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QtTest>

/// Selecting a candidate row with the mouse and the keyboard.
class TestTitleItemSelection : public TitleItemTest
{
    Q_OBJECT

private Q_SLOTS:
    void aClickSelectsAndASecondTakesItBack();
    void theBudgetIsTheCards();
    void withoutBudgetNothingIsSelected();
    void aRowOutsideACardCannotBeSelected();
    void aRowIsToggledWherever_data();
    void aRowIsToggledWherever();
    void whatIsNoClickDoesNotToggle_data();
    void whatIsNoClickDoesNotToggle();
    void aClickDoesNotReachTheCard();
    void keysToggle_data();
    void keysToggle();
    void aHeldKeyTogglesOnce();
};

void TestTitleItemSelection::aClickSelectsAndASecondTakesItBack()
{
    m_row->insertConferenceMsg(Zhang);
    m_card->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_card.get()));
    const int budget = m_card->selectionBudget().remaining();
    QCOMPARE(budget, 65535);
    for (int round = 0; round < 2; ++round) {
        QTest::mouseClick(m_row, Qt::LeftButton);
        QVERIFY(m_row->isSelected());
        QVERIFY(mark(*m_row)->isVisible());
        QVERIFY(mark(*m_row)->isChecked());
        auto *layout = qobject_cast<QHBoxLayout *>(m_row->layout());
        const int index = layout->indexOf(mark(*m_row));
        QVERIFY(index >= 0);
        QCOMPARE(layout->stretch(index), 1);
        QCOMPARE(layout->itemAt(index)->alignment(), Qt::AlignRight);
        QCOMPARE(m_card->selectionBudget().remaining(), budget - 1);

        QTest::mouseClick(m_row, Qt::LeftButton);
        QVERIFY(!m_row->isSelected());
        QVERIFY(mark(*m_row)->isHidden());
        QVERIFY(!mark(*m_row)->isChecked());
        QCOMPARE(layout->indexOf(mark(*m_row)), -1);
        QCOMPARE(m_card->selectionBudget().remaining(), budget);
    }
}

void TestTitleItemSelection::theBudgetIsTheCards()
{
    m_row->insertConferenceMsg(Zhang);
    auto *second = new TiTleItem(QString(), m_card.get());
    second->insertSinglePersonName(Zhang);
    QTest::mouseClick(m_row, Qt::LeftButton);
    QTest::mouseClick(second, Qt::LeftButton);
    QCOMPARE(m_card->selectionBudget().remaining(), 65533);
}

void TestTitleItemSelection::withoutBudgetNothingIsSelected()
{
    m_row->insertConferenceMsg(Zhang);
    auto *second = new TiTleItem(QString(), m_card.get());
    second->insertConferenceMsg(Zhang);
    m_card->selectionBudget().limitTo(1);
    QTest::mouseClick(m_row, Qt::LeftButton);
    QTest::mouseClick(second, Qt::LeftButton);
    QVERIFY(m_row->isSelected());
    QVERIFY(!second->isSelected());
    QVERIFY(mark(*second)->isHidden());
    QCOMPARE(m_card->selectionBudget().remaining(), 0);

    QTest::mouseClick(m_row, Qt::LeftButton);
    QTest::mouseClick(second, Qt::LeftButton);
    QVERIFY(!m_row->isSelected());
    QVERIFY(second->isSelected());

    m_card->selectionBudget().limitTo(-3);
    QCOMPARE(m_card->selectionBudget().remaining(), 0);
}

void TestTitleItemSelection::aRowOutsideACardCannotBeSelected()
{
    QWidget window;
    TiTleItem row(QString(), &window);
    row.insertConferenceMsg(Zhang);
    QTest::mouseClick(&row, Qt::LeftButton);
    QVERIFY(!row.isSelected());
    QVERIFY(mark(row)->isHidden());
}

void TestTitleItemSelection::aRowIsToggledWherever_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::newRow("on the name") << QPoint(15, 20);
    QTest::newRow("at the left edge") << QPoint(0, 0);
    QTest::newRow("at the right edge") << QPoint(329, 39);
    QTest::newRow("on the mark") << QPoint(315, 20);
}

void TestTitleItemSelection::aRowIsToggledWherever()
{
    QFETCH(QPoint, position);
    m_row->insertConferenceMsg(Zhang);
    m_card->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_card.get()));
    const auto click = [this, position] {
        // As Qt delivers it: to the innermost widget there that takes mouse events.
        QWidget *target = m_row->childAt(position);
        target = target == nullptr ? m_row : target;
        QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, target->mapFrom(m_row, position));
    };
    click();
    QVERIFY(m_row->isSelected());
    QVERIFY(mark(*m_row)->isChecked());
    click();
    QVERIFY(!m_row->isSelected());
    QCOMPARE(m_card->mouseReleases, 0);
}

void TestTitleItemSelection::whatIsNoClickDoesNotToggle_data()
{
    addColumns<int, QPoint>({"button", "releasedAt"});
    QTest::newRow("the right button") << int(Qt::RightButton) << QPoint(20, 20);
    QTest::newRow("the middle button") << int(Qt::MiddleButton) << QPoint(20, 20);
    QTest::newRow("let go below the row") << int(Qt::LeftButton) << QPoint(20, 60);
    QTest::newRow("let go beside the row") << int(Qt::LeftButton) << QPoint(340, 20);
}

void TestTitleItemSelection::whatIsNoClickDoesNotToggle()
{
    QFETCH(int, button);
    QFETCH(QPoint, releasedAt);
    m_row->insertConferenceMsg(Zhang);
    QTest::mousePress(m_row, static_cast<Qt::MouseButton>(button), Qt::NoModifier, QPoint(20, 20));
    QTest::mouseRelease(m_row, static_cast<Qt::MouseButton>(button), Qt::NoModifier, releasedAt);
    QVERIFY(!m_row->isSelected());
    QCOMPARE(m_card->mouseReleases, 0);
}

void TestTitleItemSelection::aClickDoesNotReachTheCard()
{
    m_row->insertConferenceMsg(Zhang);
    m_card->selectionBudget().limitTo(0);
    QTest::mouseClick(m_row, Qt::LeftButton);
    QCOMPARE(m_card->mouseReleases, 0);
    QTest::mouseClick(m_card.get(), Qt::LeftButton, Qt::NoModifier, QPoint(350, 150));
    QCOMPARE(m_card->mouseReleases, 1);
}

void TestTitleItemSelection::keysToggle_data()
{
    addColumns<int, bool>({"key", "toggles"});
    addConfirmKeys(true);
    QTest::newRow("a letter does not, and goes on to the card") << int(Qt::Key_A) << false;
}

void TestTitleItemSelection::keysToggle()
{
    QFETCH(int, key);
    QFETCH(bool, toggles);
    m_row->insertConferenceMsg(Zhang);
    QTest::keyClick(m_row, static_cast<Qt::Key>(key));
    QCOMPARE(m_row->isSelected(), toggles);
    QCOMPARE(m_card->keyReleases, toggles ? 0 : 1);
    QTest::keyClick(m_row, static_cast<Qt::Key>(key));
    QVERIFY(!m_row->isSelected());
}

void TestTitleItemSelection::aHeldKeyTogglesOnce()
{
    m_row->insertConferenceMsg(Zhang);
    for (const bool autoRepeat : {false, true, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), autoRepeat);
        QApplication::sendEvent(m_row, &press);
        QVERIFY(press.isAccepted());
    }
    QVERIFY(m_row->isSelected());
}

QTEST_MAIN(TestTitleItemSelection)
#include "tst_titleitemselection.moc"
