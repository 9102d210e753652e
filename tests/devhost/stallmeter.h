// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Measures the longest stall of the event loop with a timer of zero milliseconds.
class StallMeter : public QObject
{
public:
    StallMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            m_longest = qMax(m_longest, m_clock.nsecsElapsed());
            m_clock.restart();
        });
        m_clock.start();
        m_timer.start(0);
    }

    double longestMsecs() const { return static_cast<double>(m_longest) / 1e6; }
    void restart()
    {
        m_longest = 0;
        m_clock.restart();
    }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};
