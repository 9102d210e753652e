// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "request/processcheck.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char *ProcessName = "meetlynx";
constexpr std::size_t LineSize = 256;

} // namespace

bool contactsApplicationIsRunning()
{
    std::array<char, LineSize> command{};
    std::snprintf(command.data(), command.size(), "ps -ef | grep -w %s | grep -v grep | wc -l", ProcessName);
    FILE *pipe = popen(command.data(), "re"); // "e": children started meanwhile do not inherit it
    if (pipe == nullptr) {
        return false;
    }
    std::array<char, LineSize> line{};
    const bool isRead = std::fgets(line.data(), static_cast<int>(line.size()), pipe) != nullptr;
    pclose(pipe);
    // With two, either might answer.
    constexpr int decimal = 10;
    return isRead && std::strtol(line.data(), nullptr, decimal) == 1;
}
