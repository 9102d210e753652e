// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "window/contactswindow.h"
#include "window/lastwindow.h"

#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <QtTest>

#include <functional>

/// What closing windows means for the application.
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
    void closingTheContactsEndsIt_data();
    void closingTheContactsEndsIt();

private:
    enum ExitCode { Ended = 0, StillRunning = 1 };

    /// Closes @p window inside the event loop, and ends the loop if nothing else does.
    static int runAndClose(QWidget &window)
    {
        return runAndClose(window, [&window] { window.close(); });
    }
    static int runAndClose(QWidget &window, const std::function<void()> &close)
    {
        QTimer::singleShot(0, &window, [&window, close] {
            close();
            // Events posted by closing come first.
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
    // The condition is evaluated on each close: show and close the window twice.
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

void TestLastWindow::closingTheContactsEndsIt_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<bool>("isNeeded");
    QTest::addColumn<int>("code");
    QTest::newRow("with the key") << true << false << int(Ended);
    QTest::newRow("by the window's frame") << false << false << int(Ended);
    QTest::newRow("with the key, and it reminds") << true << true << int(StillRunning);
    QTest::newRow("by the window's frame, and it reminds") << false << true << int(StillRunning);
}

void TestLastWindow::closingTheContactsEndsIt()
{
    QFETCH(bool, byKey);
    QFETCH(bool, isNeeded);
    QFETCH(int, code);
    m_isNeeded = isNeeded;
    SampleWorld world;
    ContactsWindow window(world.book, world.admin);
    for (int round = 0; round < 2; ++round) {
        window.bringUp(WindowFocus::Take);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const int got = runAndClose(window, [&window, byKey] {
            if (byKey) {
                QTest::keyClick(&window, Qt::Key_W, Qt::ControlModifier);
            } else {
                window.windowHandle()->close();
            }
        });
        QCOMPARE(got, code);
        QVERIFY(!window.isVisible());
    }
}

QTEST_MAIN(TestLastWindow)
#include "tst_lastwindow.moc"
