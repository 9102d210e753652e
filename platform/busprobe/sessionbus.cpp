// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sessionbus.h"

#include "busprobe.h"
#include "connectionguard.h"

QDBusConnection SessionBus::connect(const QString &name, const std::function<bool()> &goesOn)
{
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (BusProbe::ask(address, goesOn) != BusProbe::Found::Bus) {
        return QDBusConnection(name);
    }
    // It answered a moment ago but may have been stopped since.
    const ConnectionGuard guard(address, goesOn);
    // By address: libdbus remembers the first session bus forever.
    return address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                             : QDBusConnection::connectToBus(QString::fromLocal8Bit(address), name);
}
