// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <lumo/lcombobox.h>
#include <lumo/lspinbox.h>

#include <QWheelEvent>
#include <QtTest>

namespace {

/// Returns whether @p widget accepted the wheel event.
bool turnWheelDown(QWidget &widget)
{
    const QPointF position(5, 5);
    QWheelEvent wheel(position, widget.mapToGlobal(position.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
    return wheel.isAccepted();
}

} // namespace

/// Cards are shown in a scrolling view; scrolling past a field must not change its value.
class TestLFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEmbeddedStyleOfTheSpinBox();
    void theWheelChangesOnlyTheFieldWithTheFocus();
};

void TestLFields::theEmbeddedStyleOfTheSpinBox()
{
    LSpinBox box;
    QCOMPARE(box.enabledEmbedStyle(), false);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);
    box.setEnabledEmbedStyle(true);
    QCOMPARE(box.enabledEmbedStyle(), true);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    box.setEnabledEmbedStyle(false);
    QCOMPARE(box.enabledEmbedStyle(), false);
}

void TestLFields::theWheelChangesOnlyTheFieldWithTheFocus()
{
    QWidget window;
    LSpinBox box(&window);
    box.setRange(0, 10);
    box.setValue(5);
    LComboBox combo(&window);
    combo.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    combo.setFocus();
    QVERIFY(!turnWheelDown(box));
    QCOMPARE(box.value(), 5);
    QVERIFY(turnWheelDown(combo));
    QCOMPARE(combo.currentIndex(), 1);

    box.setFocus();
    QVERIFY(turnWheelDown(box));
    QCOMPARE(box.value(), 4);
    QVERIFY(!turnWheelDown(combo));
    QCOMPARE(combo.currentIndex(), 1);
}

QTEST_MAIN(TestLFields)
#include "tst_lfields.moc"
