// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "request/requesttimeout.h"

#include "configmanager.h"

namespace {

// Milliseconds.
constexpr int ShortestTimeOut = 500; ///< values up to this one are taken for mistakes
constexpr int DefaultTimeOut = 5000;
constexpr int DefaultMaxTimeOut = 15000;

/// Returns the number configured under @p key if it exceeds @p limit, @p otherwise if not. Text counts as 0.
int configuredAbove(int limit, const QString &key, int otherwise)
{
    QString text;
    if (!ConfigManager::instance()->query(key, text)) {
        return otherwise;
    }
    const int value = text.toInt();
    return value > limit ? value : otherwise;
}

} // namespace

int requestTimeout(bool applicationIsRunning)
{
    const int timeOut = configuredAbove(ShortestTimeOut, QStringLiteral("/Contact/TimeOut"), DefaultTimeOut);
    if (applicationIsRunning) {
        return timeOut;
    }
    // A maximum that does not exceed the normal time-out is deliberately replaced by the default maximum, not
    // by the normal time-out.
    return configuredAbove(timeOut, QStringLiteral("/Contact/MaxTimeOut"), DefaultMaxTimeOut);
}
