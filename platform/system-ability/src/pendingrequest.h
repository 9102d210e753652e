// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

/**
 * One request between the thread that waits for it and the thread that carries it; shared by both, so it
 * outlives whichever is done first. The first end counts: a reply that comes after the time-out is dropped.
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
        bool isRefusal = false; ///< the application itself has said that nothing was done
    };

    /// The time starts to run here.
    PendingRequest(const QString &action, const QString &parameters, int timeoutMsecs);

    const QString action;
    const QString parameters;
    const QString id; ///< by which the application knows the request, too

    /// Any thread.
    void finish(const Result &result);
    /// Blocks until there is a result or the time has passed. Once.
    Result wait();
    /// Milliseconds that are left, at least 0.
    int remainingMsecs() const;
    /// Until when the application may carry it out, in milliseconds of CLOCK_MONOTONIC: a little before the
    /// caller stops waiting, because the commit and the answer take their time as well.
    qint64 deadlineMsecs() const;
    /// Called right before the request leaves the process.
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
