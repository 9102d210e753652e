// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLatin1String>

#include <cstddef>

/// "text"_latin1: a constexpr QLatin1String on every compiler, because the length need not be searched for.
constexpr QLatin1String operator""_latin1(const char *text, std::size_t size)
{
    return QLatin1String(text, static_cast<int>(size));
}
