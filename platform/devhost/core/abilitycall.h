// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "logrecord.h"

#include <QString>

namespace devhost {

/// One request that the ability library made for the plugin, read from the library's trace.
struct AbilityCall
{
    QString action;
    QString parameters; ///< JSON, without passwords
    QString answer;     ///< JSON; empty when the call failed
    int code = 0;
    double msecs = 0;
    /// Not a request of this turn, but an earlier one that was reported as failed and carried out after all.
    bool isPerformedAfterAll = false;

    /// The log category of the trace. The host switches it on.
    static QString category();
    /// Reads @p record into @p call; false when the record is no such trace.
    static bool read(const LogRecord &record, AbilityCall &call);
};

} // namespace devhost
