// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <functional>

/**
 * Whether somebody who speaks D-Bus is behind an address. The library below QtDBus waits without a bound for
 * a bus that takes connections and does not answer, one that is stopped for instance, on a thread that all of
 * the process's connections share; so this is asked first. Blocks, in steps of a few milliseconds.
 */
namespace BusProbe {
enum class Found {
    Bus,     ///< it has answered, or the address is of a kind that cannot be asked
    Nothing, ///< nobody takes the connection
    Silence, ///< connected, and no answer before @c goesOn said no
};

/// Asks each of the addresses in @p addresses, separated by semicolons, until one answers; the empty text
/// stands for the user's own bus. @p goesOn is asked again and again whether there is still time.
Found ask(const QByteArray &addresses, const std::function<bool()> &goesOn);
} // namespace BusProbe
