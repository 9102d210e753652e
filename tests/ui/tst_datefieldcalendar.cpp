// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "datefieldtest.h"

#include "desktoptheme.h"
#include "paintedcontrast.h"

#include <QAbstractItemView>
#include <QTextCharFormat>
#include <QToolButton>
#include <QtTest>

/// The date field's calendar: where it opens, how it looks, and how a day is chosen.
class TestDateFieldCalendar : public DateFieldTest
{
    Q_OBJECT

private Q_SLOTS:
    void theCalendarIsAHiddenWindowWithoutFrame();
    void theCalendarsPlaceCountsTheParentsOffsetTwice();
    void theCalendarOpensOnTheChosenDay();
    void theCalendarIsChineseWithoutWeekNumbers();
    void pastDaysAreDimmedAndSelectable();
    void theCalendarHasTheThemesColours_data();
    void theCalendarHasTheThemesColours();
    void aClickInTheCalendarSelects();
    void returnInTheCalendarSelects_data();
    void returnInTheCalendarSelects();
    void escapeClosesTheCalendarWithoutSelecting();
    void theCalendarGoesWithItsField();
};

void TestDateFieldCalendar::theCalendarIsAHiddenWindowWithoutFrame()
{
    QVERIFY(calendar() != nullptr);
    QVERIFY(!calendar()->isVisible());
    QCOMPARE(calendar()->parent(), nullptr);
    QCOMPARE(calendar()->windowType(), Qt::Dialog);
    QVERIFY(calendar()->windowFlags().testFlag(Qt::FramelessWindowHint));
}

void TestDateFieldCalendar::theCalendarsPlaceCountsTheParentsOffsetTwice()
{
    // The first time, the size before showing counts.
    const int calendarWidth = calendar()->width();
    QTest::mouseClick(m_field, Qt::LeftButton);
    const QPoint doubled = m_field->mapToGlobal(m_field->pos());
    QCOMPARE(doubled, m_window->mapToGlobal(QPoint(2 * 30, 2 * 50)));
    QCOMPARE(calendar()->pos(), QPoint(doubled.x() - (calendarWidth - 160) / 2, doubled.y() + 30));
}

void TestDateFieldCalendar::theCalendarOpensOnTheChosenDay()
{
    m_field->slotSelectionData(Thursday);
    QTest::mouseClick(m_field, Qt::LeftButton);
    QCOMPARE(calendar()->selectedDate(), Thursday);
    QCOMPARE(calendar()->yearShown(), 2024);
    QCOMPARE(calendar()->monthShown(), 3);
    // Even after the user has browsed to another month.
    calendar()->setCurrentPage(2030, 7);
    calendar()->hide();
    QTest::mouseClick(m_field, Qt::LeftButton);
    QCOMPARE(calendar()->yearShown(), 2024);
}

void TestDateFieldCalendar::theCalendarIsChineseWithoutWeekNumbers()
{
    m_field->slotSelectionData(Thursday);
    QTest::mouseClick(m_field, Qt::LeftButton);
    QCOMPARE(calendar()->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
    const auto *month = calendar()->findChild<QToolButton *>(QStringLiteral("qt_calendar_monthbutton"));
    QVERIFY(month != nullptr);
    QCOMPARE(month->text(), QStringLiteral("三月"));
    const auto *view = calendar()->findChild<QAbstractItemView *>();
    QStringList header;
    for (int column = 0; column < view->model()->columnCount(); ++column) {
        header << view->model()->index(0, column).data().toString();
    }
    QVERIFY2(header.contains(QStringLiteral("周一")), qPrintable(header.join(QLatin1Char(' '))));
}

void TestDateFieldCalendar::pastDaysAreDimmedAndSelectable()
{
    const QDate today = QDate::currentDate();
    m_field->slotSelectionData(today);
    QTest::mouseClick(m_field, Qt::LeftButton);
    const auto isDimmed = [](const QDate &day) {
        const QBrush brush = calendar()->dateTextFormat(day).foreground();
        return brush.style() != Qt::NoBrush && brush.color().alpha() == 153;
    };
    QVERIFY(!isDimmed(today));
    QVERIFY(!isDimmed(today.addDays(1)));
    QVERIFY(isDimmed(today.addDays(-1)));
    const QDate lastMonth = today.addMonths(-1);
    calendar()->setCurrentPage(lastMonth.year(), lastMonth.month());
    QVERIFY(isDimmed(lastMonth));
    QVERIFY(!isDimmed(today));
    QVERIFY(calendar()->minimumDate() < lastMonth);
    calendar()->setSelectedDate(lastMonth);
    QCOMPARE(calendar()->selectedDate(), lastMonth);
}

void TestDateFieldCalendar::theCalendarHasTheThemesColours_data()
{
    DesktopTheme::addRows();
}

void TestDateFieldCalendar::theCalendarHasTheThemesColours()
{
    QFETCH(int, theme);
    m_field->slotSelectionData(Thursday);
    QTest::mouseClick(m_field, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowActive(calendar()));
    // The theme changes while the calendar is open.
    DesktopTheme::set(static_cast<DesktopTheme::Theme>(theme));
    const QPalette colors = calendar()->palette();
    const QColor weekend = calendar()->weekdayTextFormat(Qt::Sunday).foreground().color();
    QCOMPARE(weekend, colors.color(QPalette::Link));
    QCOMPARE(calendar()->weekdayTextFormat(Qt::Saturday).foreground().color(), weekend);
    auto *bar = calendar()->findChild<QWidget *>(QStringLiteral("qt_calendar_navigationbar"));
    for (const char *name : {"qt_calendar_prevmonth", "qt_calendar_nextmonth"}) {
        auto *button = calendar()->findChild<QToolButton *>(QLatin1String(name));
        const QRect place(button->mapTo(bar, QPoint()), button->size());
        const double contrast = PaintedContrast::ofText(bar->grab(place).toImage());
        QVERIFY2(contrast >= 3, qPrintable(QString::number(contrast)));
    }
    DesktopTheme::set(DesktopTheme::Light);
}

void TestDateFieldCalendar::aClickInTheCalendarSelects()
{
    QTest::mouseClick(m_field, Qt::LeftButton);
    Q_EMIT calendar()->clicked(Thursday);
    QCOMPARE(m_field->currentText(), QStringLiteral("3月7日 周四"));
    QVERIFY(!calendar()->isVisible());
}

void TestDateFieldCalendar::returnInTheCalendarSelects_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TestDateFieldCalendar::returnInTheCalendarSelects()
{
    QFETCH(int, key);
    m_field->setFocus();
    QTest::keyClick(m_field, Qt::Key_Return);
    QVERIFY(QTest::qWaitForWindowActive(calendar()));
    calendar()->setSelectedDate(Thursday);
    QWidget *focused = QApplication::focusWidget();
    QTest::keyClick(focused, Qt::Key_Right);
    QVERIFY(calendar()->isVisible());
    const QSignalSpy selected(m_field, &CustomizeComboBox::signalSelectionDate);
    QTest::keyClick(focused, static_cast<Qt::Key>(key));
    QCOMPARE(selected.count(), 1);
    QCOMPARE(m_field->getConferenceDate(), Thursday.addDays(1));
    QVERIFY(!calendar()->isVisible());
}

void TestDateFieldCalendar::escapeClosesTheCalendarWithoutSelecting()
{
    const QSignalSpy selected(m_field, &CustomizeComboBox::signalSelectionDate);
    QTest::mouseClick(m_field, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowActive(calendar()));
    QTest::keyClick(calendar(), Qt::Key_Escape);
    QVERIFY(!calendar()->isVisible());
    QCOMPARE(selected.count(), 0);
}

void TestDateFieldCalendar::theCalendarGoesWithItsField()
{
    QTest::mouseClick(m_field, Qt::LeftButton);
    QVERIFY(calendar()->isVisible());
    m_field->hide();
    QVERIFY(!calendar()->isVisible());

    m_field->show();
    QTest::mouseClick(m_field, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowActive(calendar()));
    m_window->activateWindow();
    QTRY_VERIFY(!calendar()->isVisible());
}

QTEST_MAIN(TestDateFieldCalendar)
#include "tst_datefieldcalendar.moc"
