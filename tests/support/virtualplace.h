// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstring>

/**
 * The vtable index of @p function, counted from 0; a destructor takes two slots. The order of virtual
 * functions is a contract with code built elsewhere, and no compiler notices a swap.
 */
template <typename Function>
std::ptrdiff_t virtualPlaceOf(Function function)
{
    // A pointer to a virtual member holds its vtable offset plus one, which tells it from an address.
    std::array<std::ptrdiff_t, 2> raw{};
    static_assert(sizeof(raw) == sizeof(function));
    std::memcpy(raw.data(), &function, sizeof(raw));
    return (raw[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void *));
}

/// The first vtable index after QObject's own virtual functions.
constexpr std::ptrdiff_t FirstPlaceAfterQObject = 12;
