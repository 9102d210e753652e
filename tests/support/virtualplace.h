// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstring>

/**
 * Where in its class's table of virtual functions @p function stands, counted from 0 with two places for a
 * destructor. The order of virtual functions is a contract with what was built elsewhere, and nothing else
 * notices a swap.
 */
template <typename Function>
std::ptrdiff_t virtualPlaceOf(Function function)
{
    // A pointer to a virtual member holds its offset in the table, plus one to tell it from an address.
    std::array<std::ptrdiff_t, 2> raw{};
    static_assert(sizeof(raw) == sizeof(function));
    std::memcpy(raw.data(), &function, sizeof(raw));
    return (raw[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void *));
}

/// The first place after QObject's own virtual functions.
constexpr std::ptrdiff_t FirstPlaceAfterQObject = 12;
