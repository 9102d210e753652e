// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

/**
 * One request, shared by the thread that waits for it and the thread that sends it, so it outlives whichever
 * finishes first. The first end counts: a reply after the time-out is dropped.
 */
class PendingRequest
{
public:
    struct Result
    {
        int code = 0; ///< see AbilityCode
        QString answer;
        QString errorName; ///< D-Bus's name for what went wrong
        QString errorMessage;
        bool isRefusal = false; ///< the application itself reported that nothing was done
    };

    /// Starts the time-out.
    PendingRequest(const QString &action, const QString &parameters, int timeoutMsecs);

    const QString action;
    const QString parameters;
    const QString id; ///< the application knows the request by it, too

    /// Any thread.
    void finish(const Result &result);
    /// Blocks until there is a result or the time-out passes. Call once.
    Result wait();
    /// Remaining milliseconds, at least 0.
    int remainingMsecs() const;
    /// The latest time at which the application may carry it out, in milliseconds of CLOCK_MONOTONIC: a
    /// little before the caller stops waiting, because the commit and the answer take time as well.
    qint64 deadlineMsecs() const;
    /// Call right before the request leaves the process.
    void noteSent() { m_isSent = true; }
    /// Whether the application may have carried it out although the caller was told @p code. Any thread.
    bool isUnclear(int code) const;

private:
    using Clock = std::chrono::steady_clock;

    const Clock::time_point m_deadline;
    const std::chrono::milliseconds m_answerTime;
    std::atomic<bool> m_isSent{false};
    std::mutex m_mutex;
    std::condition_variable m_finished;
    bool m_isFinished = false;
    Result m_result;
};
