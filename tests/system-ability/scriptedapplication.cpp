// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scriptedrequests.h"

#include "contact1adaptor.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <cstdio>

/// Takes the application's name on the bus, then prints "ready".
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    ScriptedRequests requests;
    new Contact1Adaptor(&requests);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/com/kelvane/meetlynx"), &requests) ||
        !bus.registerService(QStringLiteral("com.kelvane.meetlynx"))) {
        return 1;
    }
    // Ends with its bus, like the application itself.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                QCoreApplication::instance(), SLOT(quit()));
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
