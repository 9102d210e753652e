// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "busclient.h"

class QDBusServiceWatcher;

namespace devhost {

/// The part of ApplicationLink that talks to the contacts application.
class ApplicationAsker final : public BusClient
{
    Q_OBJECT

public:
    ApplicationAsker();

    void start() override { ask(); }
    /// told() follows. Does not start the application.
    void ask();
    /// Starts the application if necessary; emits windowRefused() when it does not answer.
    void openWindow();

Q_SIGNALS:
    /// The answer to Overview(); empty when the application gave none.
    void told(const QString &overview);
    void windowRefused();

private:
    bool reachBus();

    QDBusServiceWatcher *m_watcher = nullptr; ///< a child, of the present connection
    bool m_isAsking = false;
    bool m_askAgain = false;
};

} // namespace devhost
