// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <functional>

/**
 * Finds out whether a D-Bus server answers at an address. libdbus waits without a bound for a bus that
 * accepts connections but never answers, for instance because it is stopped, and does so on a thread that all
 * connections of the process share. So this is asked first. Blocks, in steps of a few milliseconds.
 */
namespace BusProbe {
enum class Found {
    Bus,     ///< it has answered, or the address is of a kind that cannot be asked
    Nothing, ///< nobody takes the connection
    Silence, ///< connected, and no answer before @c goesOn said no
};

/// Probes each address in @p addresses, separated by semicolons, until one answers; an empty text stands for
/// the user's own bus. @p goesOn is polled: false means that time is up.
Found ask(const QByteArray &addresses, const std::function<bool()> &goesOn);
} // namespace BusProbe
