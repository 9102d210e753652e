// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// How ContactUtils finds out how long a request may take.

#include "contactutils.h"

#include "configmanager.h"
#include "wire/latin1literal.h"

namespace {

constexpr QLatin1String TimeOutKey = "/Contact/TimeOut"_latin1;
constexpr QLatin1String MaxTimeOutKey = "/Contact/MaxTimeOut"_latin1;

// Milliseconds.
constexpr int ShortestTimeOut = 500; ///< anything up to it is taken for a mistake
constexpr int DefaultTimeOut = 5000;
constexpr int DefaultMaxTimeOut = 15000;

/// The configured number when it is greater than @p limit, else @p otherwise. A text that is no number is 0.
int configuredAbove(int limit, QLatin1String key, int otherwise)
{
    QString text;
    if (!ConfigManager::instance()->query(key, text)) {
        return otherwise;
    }
    const int value = text.toInt();
    return value > limit ? value : otherwise;
}

} // namespace

int ContactUtils::timeoutInit()
{
    const int timeOut = configuredAbove(ShortestTimeOut, TimeOutKey, DefaultTimeOut);
    if (contactAppIsRunning()) {
        return timeOut;
    }
    // The application has to be started first. A maximum that is not above the normal time-out is replaced by
    // the default one, not by the normal time-out, on purpose.
    return configuredAbove(timeOut, MaxTimeOutKey, DefaultMaxTimeOut);
}
