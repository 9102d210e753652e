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
 * Around the making of a connection to a bus. A bus that falls silent after it was asked would keep the
 * library below waiting for ever; what it has connected since is shut down once there is no more time, so
 * that it gives up. That library does not tell its sockets: any other socket of this process that was
 * connected to the same bus meanwhile, by whomever, is shut down too. Keep it around the connecting alone.
 */
class ConnectionGuard
{
public:
    /// @p addresses are those that the connection is made to; the empty text stands for the user's own bus.
    /// @p goesOn is asked again and again, on another thread, whether there is still time.
    ConnectionGuard(const QByteArray &addresses, std::function<bool()> goesOn);
    /// Returns at once, unless sockets are being shut down; afterwards none is.
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
