// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launcherbus.h"

#include "krunneradaptor.h"
#include "krunnerrequests.h"
#include "searchprovideradaptor.h"
#include "searchrequests.h"

#include <busprobe.h>
#include <connectionguard.h>

#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDebug>
#include <QElapsedTimer>

namespace devhost {

namespace {

constexpr int LongestSilenceMsecs = 3000;

const QLatin1String ServiceName("com.kelvane.speakmate.devhost");
const QLatin1String ConnectionName("speakmate-launcher");

} // namespace

LauncherBus::LauncherBus() = default;

LauncherBus::~LauncherBus()
{
    QDBusConnection::disconnectFromBus(ConnectionName);
}

QDBusConnection LauncherBus::bus() const
{
    return QDBusConnection(ConnectionName);
}

LauncherBus::Start LauncherBus::connectToBus()
{
    QElapsedTimer timer;
    timer.start();
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const auto goesOn = [&timer] {
        return timer.elapsed() < LongestSilenceMsecs;
    };
    if (BusProbe::ask(address, goesOn) != BusProbe::Found::Bus) {
        return Start::NoBus;
    }
    // It has answered a moment ago, and may be stopped since.
    const ConnectionGuard guard(address, goesOn);
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName);
    if (!bus.isConnected()) {
        return Start::NoBus;
    }
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                SIGNAL(disconnected()));
    return Start::Done;
}

LauncherBus::Start LauncherBus::offer(LauncherDesk &desk)
{
    registerLauncherTypes();
    auto *krunner = new KRunnerRequests(desk, this);
    auto *search = new SearchRequests(desk, this);
    // Adaptors belong to the objects that they speak for.
    new KRunnerAdaptor(krunner);
    new SearchProviderAdaptor(search);
    QDBusConnection connection = bus();
    // The objects first: whoever waits for the name calls at once.
    const bool areOffered =
        connection.registerObject(QStringLiteral("/krunner"), krunner) &&
        connection.registerObject(QStringLiteral("/com/kelvane/speakmate/devhost/SearchProvider"), search);
    if (areOffered && connection.registerService(ServiceName)) {
        return Start::Done;
    }
    if (areOffered && connection.interface()->isServiceRegistered(ServiceName)) {
        return Start::AlreadyRunning;
    }
    qCritical() << "The launchers cannot be served:" << connection.lastError().message();
    return Start::Refused;
}

} // namespace devhost
