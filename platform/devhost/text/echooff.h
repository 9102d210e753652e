// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <termios.h>

namespace devhost {

/// Switches off the terminal's echo on standard input while it lives. Does nothing without a terminal.
class EchoOff
{
public:
    EchoOff();
    ~EchoOff();
    EchoOff(const EchoOff &) = delete;
    EchoOff &operator=(const EchoOff &) = delete;

private:
    termios m_before{};
    bool m_isTerminal = false;
};

} // namespace devhost
