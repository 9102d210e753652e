// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <termios.h>

namespace devhost {

/// While it lives, the terminal on standard input does not show what is typed. Nothing happens without one.
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
