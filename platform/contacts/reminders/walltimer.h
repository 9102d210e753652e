// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>

/**
 * Waits for a point in calendar time. Unlike QTimer it keeps counting while the computer sleeps, so it is due
 * right after waking up, and it reports when somebody sets the clock. Use on the thread that created it.
 */
class WallTimer : public QObject
{
    Q_OBJECT

public:
    explicit WallTimer(QObject *parent = nullptr);
    ~WallTimer() override;

    /// Waits @p msecs from now on, at least a millisecond; replaces the earlier wait.
    void start(qint64 msecs);

Q_SIGNALS:
    /// The time has come, or the clock was set.
    void timeout();

private:
    Q_DISABLE_COPY(WallTimer)

    void watch(int descriptor);
    void watchClock();

    int m_wait;  ///< descriptors of the kernel's timers
    int m_clock; ///< never due; becomes readable when the clock is set
};
