// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// How ContactUtils finds out whether the contacts application runs. A unit of its own, so that what is
// measured or tested without a process table can put another answer in its place.

#include "contactutils.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char *ProcessName = "meetlynx";
constexpr std::size_t LineSize = 256;

} // namespace

bool ContactUtils::contactAppIsRunning()
{
    std::array<char, LineSize> command{};
    std::snprintf(command.data(), command.size(), "ps -ef | grep -w %s | grep -v grep | wc -l", ProcessName);
    FILE *pipe = popen(command.data(), "re"); // "e": no child started meanwhile inherits it
    if (pipe == nullptr) {
        return false;
    }
    std::array<char, LineSize> line{};
    const bool isRead = std::fgets(line.data(), static_cast<int>(line.size()), pipe) != nullptr;
    pclose(pipe);
    // Exactly one, on purpose: with two it is not clear which of them would answer.
    constexpr int decimal = 10;
    return isRead && std::strtol(line.data(), nullptr, decimal) == 1;
}
