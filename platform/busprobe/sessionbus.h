// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>

#include <functional>

/// Connects to a session bus that may be silent, gone or replaced.
namespace SessionBus {

/**
 * Opens a private connection called @p name to the bus that the environment names now. It is not connected
 * when nobody answers, or when @p goesOn, which is polled on any thread, says that time is up. Close it with
 * QDBusConnection::disconnectFromBus().
 *
 * Connect to other programs' signals without a service name, and check the message's sender where it matters:
 * with a name, QtDBus asks the bus for its owner on the thread that all connections share, without a bound,
 * and aborts if the connection is shut down meanwhile.
 */
QDBusConnection connect(const QString &name, const std::function<bool()> &goesOn);

} // namespace SessionBus
