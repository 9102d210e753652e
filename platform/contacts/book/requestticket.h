// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <chrono>

/// The time limit of a request and the id by which its caller asks about it later. By default there is no
/// limit and no id.
struct RequestTicket
{
    qint64 deadlineMsecs = 0; ///< of CLOCK_MONOTONIC; 0: none
    QString id;               ///< may be empty

    bool hasPassed() const { return deadlineMsecs != 0 && nowMsecs() >= deadlineMsecs; }

    /// Milliseconds of CLOCK_MONOTONIC, which is the same in every process of the machine.
    static qint64 nowMsecs()
    {
        return std::chrono::duration_cast<std::chrono::milliseconds>(
                   std::chrono::steady_clock::now().time_since_epoch())
            .count();
    }
};
