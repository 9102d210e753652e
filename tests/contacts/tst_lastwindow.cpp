// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/lastwindow.h"

#include <QTimer>
#include <QWidget>
#include <QtTest>

/// What closing windows does to the application.
class TestLastWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        endWithLastWindowUnless([this] { return m_isNeeded; });
    }

    void itEndsWithItsLastWindowUnlessItIsNeeded_data();
    void itEndsWithItsLastWindowUnlessItIsNeeded();
    void itDoesNotEndWhileAnotherWindowIsOpen();

private:
    enum ExitCode { Ended = 0, StillRunning = 1 };

    /// Closes @p window in the running application, and ends that when nothing else does.
    static int runAndClose(QWidget &window)
    {
        QTimer::singleShot(0, &window, [&window] {
            window.close();
            // What closing posts comes first.
            QTimer::singleShot(0, &window, [] { QCoreApplication::exit(StillRunning); });
        });
        return QCoreApplication::exec();
    }

    bool m_isNeeded = false;
};

void TestLastWindow::itEndsWithItsLastWindowUnlessItIsNeeded_data()
{
    QTest::addColumn<bool>("isNeeded");
    QTest::addColumn<int>("code");
    QTest::newRow("it has nothing to do without a window") << false << int(Ended);
    QTest::newRow("it reminds") << true << int(StillRunning);
}

void TestLastWindow::itEndsWithItsLastWindowUnlessItIsNeeded()
{
    QFETCH(bool, isNeeded);
    QFETCH(int, code);
    m_isNeeded = isNeeded;
    QWidget window;
    // Asked each time anew: the window is closed, shown and closed again.
    for (int round = 0; round < 2; ++round) {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(runAndClose(window), code);
    }
}

void TestLastWindow::itDoesNotEndWhileAnotherWindowIsOpen()
{
    m_isNeeded = false;
    QWidget other;
    other.show();
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(runAndClose(window), int(StillRunning));
}

QTEST_MAIN(TestLastWindow)
#include "tst_lastwindow.moc"
