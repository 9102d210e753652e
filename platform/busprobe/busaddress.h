// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <sys/socket.h>
#include <sys/un.h>

/// Reads D-Bus server addresses.
namespace BusAddress {

/// The address of the user's own bus.
QByteArray ownBus();

/// The socket path of a "unix:" address, starting with a NUL for an abstract one. Null for other addresses.
QByteArray socketOf(const QByteArray &address);

/// Fills @p name and returns its length, 0 when the path is too long for a socket address.
socklen_t fill(sockaddr_un &name, const QByteArray &path);

} // namespace BusAddress
