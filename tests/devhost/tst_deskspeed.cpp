// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "realdesk.h"
#include "stallmeter.h"

#include <QtTest>

#include <algorithm>
#include <iostream>

using namespace devhost;

namespace {

constexpr int LongestWaitMsecs = 20000;

/// Measures the time from start() to a window's first paint.
class PaintMeter : public QObject
{
public:
    explicit PaintMeter(QWidget &window) { window.installEventFilter(this); }

    void start()
    {
        m_msecs = 0;
        m_timer.start();
    }
    double msecs() const { return m_msecs; }
    /// Waits in an event loop, which sleeps only while idle.
    bool wait()
    {
        QEventLoop loop;
        m_loop = &loop;
        QTimer::singleShot(LongestWaitMsecs, &loop, &QEventLoop::quit);
        if (m_timer.isValid()) {
            loop.exec();
        }
        m_loop = nullptr;
        return m_msecs > 0;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::UpdateRequest || !m_timer.isValid()) {
            return false;
        }
        const bool isHandled = watched->event(event);
        m_msecs = double(m_timer.nsecsElapsed()) / 1e6;
        m_timer.invalidate();
        if (m_loop != nullptr) {
            m_loop->quit();
        }
        return isHandled;
    }

private:
    QElapsedTimer m_timer;
    double m_msecs = 0;
    QEventLoop *m_loop = nullptr;
};

} // namespace

/// Measures a turn of the whole desk from Enter to the screen, and the window's longest stall.
class TestDeskSpeed : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void turnsAreFastAndTheWindowDoesNotStall();
};

void TestDeskSpeed::initTestCase()
{
    // The first request starts the application.
    RealDesk().say(QStringLiteral("查询今天的会议"));
}

void TestDeskSpeed::turnsAreFastAndTheWindowDoesNotStall()
{
    RealDesk desk;
    constexpr int turns = 200;
    QVector<double> understanding, plugin, request, reply, paint, total;
    QElapsedTimer sinceEnter;
    qint64 replied = 0;
    PaintMeter paintMeter(desk.window());
    connect(&desk.conversation(), &Conversation::replied, &desk.window(), [&] {
        replied = sinceEnter.nsecsElapsed();
        paintMeter.start();
    });
    StallMeter meter;
    for (int i = 1; i <= turns; ++i) {
        desk.window().input()->setText(QStringLiteral("查询今天的会议"));
        QSignalSpy answered(&desk.conversation(), &Conversation::replied);
        sinceEnter.start();
        QTest::keyClick(desk.window().input(), Qt::Key_Return);
        // Not QTRY_VERIFY(): it would add up to ten milliseconds of sleep.
        QVERIFY(!answered.isEmpty() || answered.wait(LongestWaitMsecs));
        QVERIFY(paintMeter.wait());
        QTRY_VERIFY(!desk.conversation().isBusy());
        total << double(replied) / 1e6 + paintMeter.msecs();
        const Turn turn = desk.conversation().turn(i);
        QCOMPARE(turn.code, 0);
        QCOMPARE(turn.calls.size(), 1);
        understanding << turn.understandingMsecs;
        plugin << turn.serviceMsecs - turn.requestMsecs();
        request << turn.requestMsecs();
        reply << turn.replyMsecs;
        paint << paintMeter.msecs();
    }
    const auto figure = [](QVector<double> values) {
        std::sort(values.begin(), values.end());
        return QStringLiteral("median %1 ms, slowest %2 ms")
            .arg(values.at(values.size() / 2), 0, 'f', 2)
            .arg(values.last(), 0, 'f', 2);
    };
    std::cout << "understanding:            " << qUtf8Printable(figure(understanding)) << std::endl;
    std::cout << "plugin and process check: " << qUtf8Printable(figure(plugin)) << std::endl;
    std::cout << "request:                  " << qUtf8Printable(figure(request)) << std::endl;
    std::cout << "reply and card:           " << qUtf8Printable(figure(reply)) << std::endl;
    std::cout << "showing and painting:     " << qUtf8Printable(figure(paint)) << std::endl;
    std::cout << "Enter to screen:          " << qUtf8Printable(figure(total)) << std::endl;
    std::cout << "longest stall:            " << meter.longestMsecs() << " ms" << std::endl;
    std::sort(total.begin(), total.end());
    // Far above the figures of a busy machine, and the most a user should wait.
    QVERIFY2(total.at(total.size() / 2) < 1000, qPrintable(figure(total)));
    QVERIFY2(meter.longestMsecs() < 1000, qPrintable(QString::number(meter.longestMsecs())));
}

QTEST_MAIN(TestDeskSpeed)
#include "tst_deskspeed.moc"
