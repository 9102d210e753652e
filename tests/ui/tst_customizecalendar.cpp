// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "customizecalendar.h"

#include <QFocusEvent>
#include <QtTest>

class TestCustomizeCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowIsAToolThatStaysOnTop();
    void theFocusIsLogged();
    void itCanBeShown();
};

void TestCustomizeCalendar::theWindowIsAToolThatStaysOnTop()
{
    const CustomizeCalendar calendar;
    QCOMPARE(calendar.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(calendar.windowType(), Qt::Tool);
    QVERIFY(calendar.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!calendar.windowFlags().testFlag(Qt::FramelessWindowHint));
}

void TestCustomizeCalendar::theFocusIsLogged()
{
    CustomizeCalendar calendar;
    QTest::ignoreMessage(QtDebugMsg, "focusInEvent");
    QFocusEvent focusIn(QEvent::FocusIn, Qt::OtherFocusReason);
    QApplication::sendEvent(&calendar, &focusIn);
}

void TestCustomizeCalendar::itCanBeShown()
{
    CustomizeCalendar calendar;
    calendar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&calendar));
    QCOMPARE(calendar.selectedDate(), QDate::currentDate());
}

QTEST_MAIN(TestCustomizeCalendar)
#include "tst_customizecalendar.moc"
