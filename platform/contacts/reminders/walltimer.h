// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSocketNotifier>

#include <memory>

/**
 * Waits for a moment of the calendar. Unlike QTimer it goes on counting while the computer sleeps, so that it
 * is due right after waking up, and it also tells when somebody sets the clock. On the thread that made it.
 */
class WallTimer : public QObject
{
    Q_OBJECT

public:
    explicit WallTimer(QObject *parent = nullptr);
    ~WallTimer() override;

    /// Waits @p msecs from now on, instead of what it waited for; at least a millisecond.
    void start(qint64 msecs);

Q_SIGNALS:
    /// The time has passed, or the clock has been set.
    void timeout();

private:
    Q_DISABLE_COPY(WallTimer)

    void watch(int descriptor);
    void watchClock();

    int m_wait;  ///< descriptors of the kernel's timers
    int m_clock; ///< never due; becomes readable when the clock is set
};
