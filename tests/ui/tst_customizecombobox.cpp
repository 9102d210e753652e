// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "customizecombobox.h"

#include "desktoptheme.h"
#include "paintedcontrast.h"
#include "testcolumns.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QPointer>
#include <QTextCharFormat>
#include <QToolButton>
#include <QtTest>

namespace {

const QDate Thursday(2024, 3, 7);

/// The calendar is a window without parent; a date field makes exactly one.
QCalendarWidget *calendar()
{
    QCalendarWidget *found = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *candidate = qobject_cast<QCalendarWidget *>(window)) {
            Q_ASSERT(found == nullptr);
            found = candidate;
        }
    }
    return found;
}

} // namespace

class TestCustomizeComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nothingIsChosenAtFirst();
    void theCalendarIsAHiddenWindowWithoutFrame();
    void aDayIsShownWithMonthDayAndWeekday_data();
    void aDayIsShownWithMonthDayAndWeekday();
    void aSecondDayReplacesTheFirst();
    void aSelectionIsToldBeforeItIsTakenOver();
    void aSelectionHidesTheCalendar();
    void theCalendarOpens_data();
    void theCalendarOpens();
    void otherKeysAndButtonsDoNotOpenIt_data();
    void otherKeysAndButtonsDoNotOpenIt();
    void theCalendarsPlaceCountsTheParentsOffsetTwice();
    void theCalendarOpensOnTheChosenDay();
    void theCalendarIsChineseWithoutWeekNumbers();
    void pastDaysAreDimmedAndSelectable();
    void theCalendarHasTheThemesColours_data();
    void theCalendarHasTheThemesColours();
    void theListNeverOpens();
    void aClickInTheCalendarSelects();
    void returnInTheCalendarSelects_data();
    void returnInTheCalendarSelects();
    void escapeClosesTheCalendarWithoutSelecting();
    void theCalendarGoesWithItsField();
    void theFieldMayBeDeletedByItsOwnSelection_data();
    void theFieldMayBeDeletedByItsOwnSelection();
    void theFocusIsLogged();

private:
    std::unique_ptr<QWidget> m_window;
    CustomizeComboBox *m_field = nullptr;
};

void TestCustomizeComboBox::initTestCase()
{
    QCOMPARE(calendar(), nullptr);
}

void TestCustomizeComboBox::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(100, 100, 400, 200);
    m_field = new CustomizeComboBox(m_window.get());
    m_field->setGeometry(30, 50, 160, 30);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestCustomizeComboBox::cleanup()
{
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(calendar(), nullptr);
}

void TestCustomizeComboBox::nothingIsChosenAtFirst()
{
    QCOMPARE(m_field->getConferenceDate(), QDate());
    QVERIFY(!m_field->getConferenceDate().isValid());
    QCOMPARE(m_field->count(), 0);
}

void TestCustomizeComboBox::theCalendarIsAHiddenWindowWithoutFrame()
{
    QVERIFY(calendar() != nullptr);
    QVERIFY(!calendar()->isVisible());
    QCOMPARE(calendar()->parent(), nullptr);
    QCOMPARE(calendar()->windowType(), Qt::Dialog);
    QVERIFY(calendar()->windowFlags().testFlag(Qt::FramelessWindowHint));
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
    connect(m_field, &CustomizeComboBox::signalSelectionDate, this, [&told, this](const QDate &date) {
        told.append(date);
        QCOMPARE(m_field->getConferenceDate(), Thursday);
        QCOMPARE(m_field->currentText(), QStringLiteral("3月7日 周四"));
    });
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
    QTest::newRow("on a click") << 0 << true;
    QTest::newRow("on Return") << int(Qt::Key_Return) << false;
    QTest::newRow("on Enter") << int(Qt::Key_Enter) << false;
    QTest::newRow("on Space, as combo boxes do") << int(Qt::Key_Space) << false;
    QTest::newRow("on F4, as combo boxes do") << int(Qt::Key_F4) << false;
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

void TestCustomizeComboBox::theCalendarsPlaceCountsTheParentsOffsetTwice()
{
    // The size before it was ever shown is the one that counts for the first time.
    const int calendarWidth = calendar()->width();
    QTest::mouseClick(m_field, Qt::LeftButton);
    const QPoint doubled = m_field->mapToGlobal(m_field->pos());
    QCOMPARE(doubled, m_window->mapToGlobal(QPoint(2 * 30, 2 * 50)));
    QCOMPARE(calendar()->pos(), QPoint(doubled.x() - (calendarWidth - 160) / 2, doubled.y() + 30));
}

void TestCustomizeComboBox::theCalendarOpensOnTheChosenDay()
{
    m_field->slotSelectionData(Thursday);
    QTest::mouseClick(m_field, Qt::LeftButton);
    QCOMPARE(calendar()->selectedDate(), Thursday);
    QCOMPARE(calendar()->yearShown(), 2024);
    QCOMPARE(calendar()->monthShown(), 3);
    // Also after somebody has looked elsewhere.
    calendar()->setCurrentPage(2030, 7);
    calendar()->hide();
    QTest::mouseClick(m_field, Qt::LeftButton);
    QCOMPARE(calendar()->yearShown(), 2024);
}

void TestCustomizeComboBox::theCalendarIsChineseWithoutWeekNumbers()
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

void TestCustomizeComboBox::pastDaysAreDimmedAndSelectable()
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

void TestCustomizeComboBox::theCalendarHasTheThemesColours_data()
{
    DesktopTheme::addRows();
}

void TestCustomizeComboBox::theCalendarHasTheThemesColours()
{
    QFETCH(int, theme);
    m_field->slotSelectionData(Thursday);
    QTest::mouseClick(m_field, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowActive(calendar()));
    // While it is open.
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

void TestCustomizeComboBox::aClickInTheCalendarSelects()
{
    QTest::mouseClick(m_field, Qt::LeftButton);
    Q_EMIT calendar()->clicked(Thursday);
    QCOMPARE(m_field->currentText(), QStringLiteral("3月7日 周四"));
    QVERIFY(!calendar()->isVisible());
}

void TestCustomizeComboBox::returnInTheCalendarSelects_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TestCustomizeComboBox::returnInTheCalendarSelects()
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

void TestCustomizeComboBox::escapeClosesTheCalendarWithoutSelecting()
{
    const QSignalSpy selected(m_field, &CustomizeComboBox::signalSelectionDate);
    QTest::mouseClick(m_field, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowActive(calendar()));
    QTest::keyClick(calendar(), Qt::Key_Escape);
    QVERIFY(!calendar()->isVisible());
    QCOMPARE(selected.count(), 0);
}

void TestCustomizeComboBox::theCalendarGoesWithItsField()
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

void TestCustomizeComboBox::theFieldMayBeDeletedByItsOwnSelection_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by a click in the calendar") << false;
    QTest::newRow("by Return in the calendar") << true;
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
