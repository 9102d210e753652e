// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pendingrequest.h"

#include <kelvane/abilitycodes.h>

#include <QUuid>

#include <algorithm>

namespace {

constexpr int LongestAnswerMsecs = 50;

} // namespace

PendingRequest::PendingRequest(const QString &actionName, const QString &parameterText, int timeoutMsecs)
    : action(actionName)
    , parameters(parameterText)
    , id(QUuid::createUuid().toString(QUuid::WithoutBraces))
    , m_deadline(Clock::now() + std::chrono::milliseconds(timeoutMsecs))
    , m_answerTime(qBound(1, timeoutMsecs / 50, LongestAnswerMsecs))
{
}

void PendingRequest::finish(const Result &result)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_isFinished) {
            return;
        }
        m_isFinished = true;
        m_result = result;
    }
    m_finished.notify_all();
}

PendingRequest::Result PendingRequest::wait()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (!m_finished.wait_until(lock, m_deadline, [this] { return m_isFinished; })) {
        m_isFinished = true;
        m_result = {
            AbilityCode::TimedOut, {}, QStringLiteral("timeout"), QStringLiteral("no answer in time")};
    }
    return m_result;
}

int PendingRequest::remainingMsecs() const
{
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(m_deadline - Clock::now()).count();
    return static_cast<int>(std::max<decltype(left)>(left, 0));
}

qint64 PendingRequest::deadlineMsecs() const
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               (m_deadline - m_answerTime).time_since_epoch())
        .count();
}

bool PendingRequest::isUnclear(int code) const
{
    return m_isSent && (code == AbilityCode::TimedOut || code == AbilityCode::Died ||
                        code == AbilityCode::MalformedAnswer);
}
