// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

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
    };

    /// The time starts to run here.
    PendingRequest(const QString &action, const QString &parameters, int timeoutMsecs);

    const QString action;
    const QString parameters;

    /// Any thread.
    void finish(const Result &result);
    /// Blocks until there is a result or the time has passed. Once.
    Result wait();
    /// Milliseconds that are left, at least 0.
    int remainingMsecs() const;

private:
    using Clock = std::chrono::steady_clock;

    const Clock::time_point m_deadline;
    std::mutex m_mutex;
    std::condition_variable m_finished;
    bool m_isFinished = false;
    Result m_result;
};
