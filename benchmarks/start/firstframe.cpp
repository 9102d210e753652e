// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Preloaded into a program with a window: prints when the first frame was sent, in nanoseconds of the
// monotonic clock, and ends the process.

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

class FirstFrame : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(object);
        if (event->type() == QEvent::Paint && widget != nullptr && widget->isWindow() && !m_isSeen) {
            m_isSeen = true;
            // The whole window is painted and sent before the event loop goes on.
            QTimer::singleShot(0, this, &FirstFrame::tell);
        }
        return QObject::eventFilter(object, event);
    }

private:
    static void tell()
    {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        std::printf("%lld\n", now.tv_sec * 1000000000LL + now.tv_nsec);
        std::fflush(stdout);
        std::_Exit(0);
    }

    bool m_isSeen = false;
};

void watch()
{
    QCoreApplication::instance()->installEventFilter(new FirstFrame(QCoreApplication::instance()));
}
Q_COREAPP_STARTUP_FUNCTION(watch)

} // namespace
