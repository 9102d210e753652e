// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "confirmkeys.h"
#include "datefieldtest.h"

#include "testcolumns.h"
#include "testswitch.h"

#include <QPointer>
#include <QtTest>

/// The date field: what it shows, and what opens its calendar.
class TestCustomizeComboBox : public DateFieldTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsChosenAtFirst();
    void aDayIsShownWithMonthDayAndWeekday_data();
    void aDayIsShownWithMonthDayAndWeekday();
    void aSecondDayReplacesTheFirst();
    void aSelectionIsToldBeforeItIsTakenOver();
    void aSelectionHidesTheCalendar();
    void theCalendarOpens_data();
    void theCalendarOpens();
    void otherKeysAndButtonsDoNotOpenIt_data();
    void otherKeysAndButtonsDoNotOpenIt();
    void theListNeverOpens();
    void theFieldMayBeDeletedByItsOwnSelection_data();
    void theFieldMayBeDeletedByItsOwnSelection();
    void theFocusIsLogged();
};

void TestCustomizeComboBox::nothingIsChosenAtFirst()
{
    QCOMPARE(m_field->getConferenceDate(), QDate());
    QVERIFY(!m_field->getConferenceDate().isValid());
    QCOMPARE(m_field->count(), 0);
}

void TestCustomizeComboBox::aDayIsShownWithMonthDayAndWeekday_data()
{
    addColumns<QDate, QString>({"date", "text"});
    QTest::newRow("Monday") << QDate(2024, 3, 4) << QStringLiteral("3月4日 周一");
    QTest::newRow("Tuesday") << QDate(2024, 3, 5) << QStringLiteral("3月5日 周二");
    QTest::newRow("Wednesday") << QDate(2024, 3, 6) << QStringLiteral("3月6日 周三");
    QTest::newRow("Thursday") << Thursday << QStringLiteral("3月7日 周四");
    QTest::newRow("Friday") << QDate(2024, 3, 8) << QStringLiteral("3月8日 周五");
    QTest::newRow("Saturday") << QDate(2024, 3, 9) << QStringLiteral("3月9日 周六");
    QTest::newRow("Sunday") << QDate(2024, 3, 10) << QStringLiteral("3月10日 周日");
    QTest::newRow("two digits") << QDate(2026, 12, 31) << QStringLiteral("12月31日 周四");
    QTest::newRow("a leap day") << QDate(2028, 2, 29) << QStringLiteral("2月29日 周二");
    QTest::newRow("no day counts as Sunday") << QDate() << QStringLiteral("0月0日 周日");
}

void TestCustomizeComboBox::aDayIsShownWithMonthDayAndWeekday()
{
    QFETCH(QDate, date);
    QFETCH(QString, text);
    m_field->slotSelectionData(date);
    QCOMPARE(m_field->currentText(), text);
    QCOMPARE(m_field->count(), 1);
    QCOMPARE(m_field->getConferenceDate(), date);
}

void TestCustomizeComboBox::aSecondDayReplacesTheFirst()
{
    m_field->slotSelectionData(Thursday);
    m_field->slotSelectionData(Thursday.addDays(1));
    QCOMPARE(m_field->count(), 1);
    QCOMPARE(m_field->itemText(0), QStringLiteral("3月8日 周五"));
    QCOMPARE(m_field->currentText(), QStringLiteral("3月8日 周五"));
    QCOMPARE(m_field->getConferenceDate(), Thursday.addDays(1));
}

void TestCustomizeComboBox::aSelectionIsToldBeforeItIsTakenOver()
{
    m_field->slotSelectionData(Thursday);
    QVector<QDate> told;
    const auto take = [&told, this](const QDate &date) {
        told.append(date);
        QCOMPARE(m_field->getConferenceDate(), Thursday);
        QCOMPARE(m_field->currentText(), QStringLiteral("3月7日 周四"));
    };
    connect(m_field, &CustomizeComboBox::signalSelectionDate, this, take);
    m_field->slotSelectionData(Thursday.addDays(1));
    QCOMPARE(told, QVector<QDate>{Thursday.addDays(1)});

    m_field->disconnect(this);
    const QSignalSpy again(m_field, &CustomizeComboBox::signalSelectionDate);
    m_field->slotSelectionData(Thursday.addDays(1));
    QCOMPARE(again.count(), 1);
}

void TestCustomizeComboBox::aSelectionHidesTheCalendar()
{
    calendar()->show();
    m_field->slotSelectionData(Thursday);
    QVERIFY(!calendar()->isVisible());
}

void TestCustomizeComboBox::theCalendarOpens_data()
{
    addColumns<int, bool>({"key", "clicked"});
    addConfirmKeys(false);
    QTest::newRow("F4, as in a combo box") << int(Qt::Key_F4) << false;
    QTest::newRow("no key, but a click") << 0 << true;
}

void TestCustomizeComboBox::theCalendarOpens()
{
    QFETCH(int, key);
    QFETCH(bool, clicked);
    m_field->slotSelectionData(Thursday);
    const QSignalSpy mouseClicked(m_field, &CustomizeComboBox::signalMouseClicked);
    m_field->setFocus();
    if (key == 0) {
        QTest::mouseClick(m_field, Qt::LeftButton);
    } else {
        QTest::keyClick(m_field, static_cast<Qt::Key>(key));
    }
    QVERIFY(calendar()->isVisible());
    QCOMPARE(mouseClicked.count(), clicked ? 1 : 0);
    QVERIFY(QTest::qWaitForWindowActive(calendar()));
    QVERIFY(calendar()->isAncestorOf(QApplication::focusWidget()));
    QCOMPARE(calendar()->size(), calendar()->sizeHint());
}

void TestCustomizeComboBox::otherKeysAndButtonsDoNotOpenIt_data()
{
    addColumns<int, int, QPoint>({"key", "button", "releasedAt"});
    QTest::newRow("a letter") << int(Qt::Key_A) << 0 << QPoint();
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << QPoint();
    QTest::newRow("the right button") << 0 << int(Qt::RightButton) << QPoint(5, 5);
    QTest::newRow("a press that ends elsewhere") << 0 << int(Qt::LeftButton) << QPoint(-20, 5);
}

void TestCustomizeComboBox::otherKeysAndButtonsDoNotOpenIt()
{
    QFETCH(int, key);
    QFETCH(int, button);
    QFETCH(QPoint, releasedAt);
    m_field->slotSelectionData(Thursday);
    if (button == 0) {
        QTest::keyClick(m_field, static_cast<Qt::Key>(key));
    } else {
        QTest::mousePress(m_field, static_cast<Qt::MouseButton>(button), Qt::NoModifier, QPoint(5, 5));
        QTest::mouseRelease(m_field, static_cast<Qt::MouseButton>(button), Qt::NoModifier, releasedAt);
    }
    QVERIFY(!calendar()->isVisible());
}

void TestCustomizeComboBox::theListNeverOpens()
{
    m_field->slotSelectionData(Thursday);
    QTest::mousePress(m_field, Qt::LeftButton);
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    QVERIFY(!calendar()->isVisible());
    QTest::mouseRelease(m_field, Qt::LeftButton);
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    m_field->showPopup();
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    QVERIFY(calendar()->isVisible());
    m_field->hidePopup();
    QVERIFY(!calendar()->isVisible());
}

void TestCustomizeComboBox::theFieldMayBeDeletedByItsOwnSelection_data()
{
    addSwitch("byKey", "by a click in the calendar", "by Return in the calendar");
}

void TestCustomizeComboBox::theFieldMayBeDeletedByItsOwnSelection()
{
    QFETCH(bool, byKey);
    QTest::mouseClick(m_field, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowActive(calendar()));
    const QPointer<CustomizeComboBox> field(m_field);
    connect(m_field, &CustomizeComboBox::signalSelectionDate, this, [this] { m_window.reset(); });
    if (byKey) {
        QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Return);
    } else {
        Q_EMIT calendar()->clicked(Thursday);
    }
    QVERIFY(field.isNull());
}

void TestCustomizeComboBox::theFocusIsLogged()
{
    m_field->clearFocus();
    QTest::ignoreMessage(QtDebugMsg, "focusInEvent");
    m_field->setFocus();
    QVERIFY(m_field->hasFocus());
    QTest::ignoreMessage(QtDebugMsg, "focusOutEvent");
    m_field->clearFocus();
}

QTEST_MAIN(TestCustomizeComboBox)
#include "tst_customizecombobox.moc"
