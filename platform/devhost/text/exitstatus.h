// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

namespace devhost {

/// The program's exit status; documented in its manual page.
enum ExitStatus {
    EverythingAnswered = 0,
    SomethingBroken =
        1,          ///< a line was no semantic JSON, a plugin threw, a picture could not be written, no bus
    WrongUsage = 2, ///< also a file that cannot be read
    NoPlugin = 3,
};

} // namespace devhost
