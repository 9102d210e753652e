// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>

#include <functional>

/// Connecting to a bus that may be silent, gone or another one by now.
namespace SessionBus {

/**
 * A connection of its own, called @p name, to the bus whose address the environment has now; not connected
 * where nobody answers or @p goesOn, which is asked again and again on any thread, says that there is no more
 * time. The caller ends it with QDBusConnection::disconnectFromBus().
 *
 * Connect to signals of another program without naming it, and look at the message's sender where it matters:
 * given a name, the library below asks the bus for its owner on the thread that all connections share,
 * without a bound, and ends the process if the connection is shut down meanwhile.
 */
QDBusConnection connect(const QString &name, const std::function<bool()> &goesOn);

} // namespace SessionBus
