// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <chrono>

/**
 * Writes each finished request as one debug message of the category "kelvane.ability", which is off by
 * default. The message is a JSON object, with passwords masked:
 *
 *     {"action":"Join Conference","answer":"{\"ret\":\"OK\"}","code":0,"ms":3.2,
 *      "parameters":"{\"conferenceId\":\"600100\",\"password\":\"••••\"}"}
 */
class AbilityTrace
{
public:
    /// Starts the clock of one request.
    AbilityTrace(const QString &action, const QString &parameters);
    void finish(int code, const QString &answer) const;

    /**
     * Reports that a request whose caller was told that it failed has been carried out all the same: its
     * answer came too late, or the application died after it. A warning of the same category, written before
     * the next request is finished:
     *
     *     {"action":"Create Conference","performedAfterAll":true}
     */
    static void tellPerformedAfterAll(const QString &action);

    /// @p parameters with the value of "password" masked; unchanged when it is no JSON object or has none.
    static QString withoutPassword(const QString &parameters);

private:
    const QString m_action;
    const QString m_parameters;
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};
