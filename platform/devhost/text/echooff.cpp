// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "echooff.h"

#include <unistd.h>

namespace devhost {

EchoOff::EchoOff()
{
    m_isTerminal = tcgetattr(STDIN_FILENO, &m_before) == 0;
    if (!m_isTerminal) {
        return;
    }
    termios silent = m_before;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    // The newline stays visible, or the answer would follow on the question's line.
    silent.c_lflag |= ECHONL;
    tcsetattr(STDIN_FILENO, TCSANOW, &silent);
}

EchoOff::~EchoOff()
{
    if (m_isTerminal) {
        tcsetattr(STDIN_FILENO, TCSANOW, &m_before);
    }
}

} // namespace devhost
