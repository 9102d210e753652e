// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "customizecombobox.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QtTest>

#include <memory>

inline const QDate Thursday(2024, 3, 7);

/// The calendar, a top-level window; null if there is none. A date field creates exactly one.
inline QCalendarWidget *calendar()
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

/// Base class of tests: a date field in a window, with no day chosen yet.
class DateFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(calendar(), nullptr); }
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(100, 100, 400, 200);
        m_field = new CustomizeComboBox(m_window.get());
        m_field->setGeometry(30, 50, 160, 30);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(calendar(), nullptr);
    }

protected:
    std::unique_ptr<QWidget> m_window;
    CustomizeComboBox *m_field = nullptr;
};
