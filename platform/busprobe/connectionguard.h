// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <set>
#include <thread>

/**
 * Bounds the time that connecting to a bus may take. libdbus waits forever for a bus that falls silent during
 * the handshake; once time is up, the guard shuts down the sockets connected since, so that it gives up.
 * libdbus does not reveal its sockets, so any other socket that this process has connected to the same bus
 * meanwhile is shut down too. Put nothing but the connecting in its scope.
 */
class ConnectionGuard
{
public:
    /// @p addresses are the ones being connected to; an empty text stands for the user's own bus. @p goesOn
    /// is polled on another thread: false means that time is up.
    ConnectionGuard(const QByteArray &addresses, std::function<bool()> goesOn);
    /// Returns at once unless sockets are being shut down; none is once it has returned.
    ~ConnectionGuard();

private:
    Q_DISABLE_COPY(ConnectionGuard)

    void watch();
    /// Waits for a moment. @return whether the guard has ended.
    bool hasEnded();
    void shutDown(const std::set<QByteArray> &buses);

    const QByteArray m_addresses;
    const std::function<bool()> m_goesOn;
    std::set<QByteArray> m_before; ///< the sockets that were open before, by their names in the process table
    std::mutex m_mutex;
    std::condition_variable m_end;
    bool m_isOver = false; ///< under the mutex, as each shutting down is: who comes first decides
    std::thread m_thread;
};
