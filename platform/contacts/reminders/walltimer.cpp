// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminders/walltimer.h"

#include <QDebug>
#include <QSocketNotifier>

#include <sys/timerfd.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <limits>

WallTimer::WallTimer(QObject *parent)
    : QObject(parent)
    , m_wait(timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC))
    , m_clock(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC))
{
    if (m_wait < 0 || m_clock < 0) {
        qWarning("The clock cannot be watched, so reminders may be late: %s", std::strerror(errno));
    }
    watch(m_wait);
    watch(m_clock);
    watchClock();
}

WallTimer::~WallTimer()
{
    for (const int descriptor : {m_wait, m_clock}) {
        if (descriptor >= 0) {
            close(descriptor);
        }
    }
}

void WallTimer::start(qint64 msecs)
{
    constexpr qint64 second = 1000;
    const qint64 wait = qMax<qint64>(1, msecs); // 0 would mean never
    itimerspec time{};
    time.it_value.tv_sec = static_cast<time_t>(wait / second);
    time.it_value.tv_nsec = static_cast<long>(wait % second * 1000000);
    timerfd_settime(m_wait, 0, &time, nullptr);
}

void WallTimer::watch(int descriptor)
{
    if (descriptor < 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, descriptor] {
        quint64 times = 0;
        const bool wasSet = read(descriptor, &times, sizeof(times)) < 0;
        if (wasSet && errno != ECANCELED) {
            return; // woken up for nothing
        }
        if (descriptor == m_clock) {
            watchClock();
        }
        Q_EMIT timeout();
    });
}

void WallTimer::watchClock()
{
    itimerspec never{};
    // The kernel clamps anything beyond its range. A moment that the clock can pass would be due again and
    // again.
    never.it_value.tv_sec = std::numeric_limits<time_t>::max();
    timerfd_settime(m_clock, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &never, nullptr);
}
