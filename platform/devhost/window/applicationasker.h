// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "busclient.h"

class QDBusServiceWatcher;

namespace devhost {

/// Talks to the contacts application for ApplicationLink, whose part it is.
class ApplicationAsker final : public BusClient
{
    Q_OBJECT

public:
    ApplicationAsker();

    void start() override { ask(); }
    /// told() follows. Does not start the application.
    void ask();
    /// Starts the application when it does not run; windowRefused() when it does not answer.
    void openWindow();

Q_SIGNALS:
    /// What the application's Overview() answers; the empty text without one.
    void told(const QString &overview);
    void windowRefused();

private:
    bool reachBus();

    QDBusServiceWatcher *m_watcher = nullptr; ///< a child, of the present connection
    bool m_isAsking = false;
    bool m_askAgain = false;
};

} // namespace devhost
