// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launcherbus.h"

#include "krunneradaptor.h"
#include "krunnerrequests.h"
#include "searchprovideradaptor.h"
#include "searchrequests.h"

#include <sessionbus.h>

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
    QDBusConnection bus =
        SessionBus::connect(ConnectionName, [&timer] { return timer.elapsed() < LongestSilenceMsecs; });
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
    // Adaptors are children of the objects they adapt.
    new KRunnerAdaptor(krunner);
    new SearchProviderAdaptor(search);
    QDBusConnection connection = bus();
    // Objects before the name: clients waiting for the name call at once.
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
