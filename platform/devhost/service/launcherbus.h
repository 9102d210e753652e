// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <busstart.h>

#include <QDBusConnection>
#include <QObject>

namespace devhost {

class LauncherDesk;

/// Publishes the desk on the session bus for both kinds of launcher, under one name.
class LauncherBus final : public QObject
{
    Q_OBJECT

public:
    using Start = BusStart;

    LauncherBus();
    ~LauncherBus() override;

    /// Waits at most three seconds for a silent bus.
    Start connectToBus();
    /// Call after connectToBus(). @p desk must outlive this object.
    Start offer(LauncherDesk &desk);
    QDBusConnection bus() const;

Q_SIGNALS:
    /// The bus is gone; nobody is left to serve.
    void disconnected();
};

} // namespace devhost
