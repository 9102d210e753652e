// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// How it went to put a program on the session bus.
enum class BusStart {
    Done,
    NoBus,
    AlreadyRunning, ///< another process has the name
    Refused,        ///< the bus does not take an object or the name; the reason is in the log
};
