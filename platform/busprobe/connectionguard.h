// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <functional>
#include <set>
#include <thread>

#include <atomic>

/**
 * Around the making of a connection to a bus. A bus that falls silent after it was asked would keep the
 * library below waiting for ever; what it has connected since is shut down once there is no more time, so
 * that it gives up.
 */
class ConnectionGuard
{
public:
    /// @p addresses are those that the connection is made to; the empty text stands for the user's own bus.
    /// @p goesOn is asked again and again, on another thread, whether there is still time.
    ConnectionGuard(const QByteArray &addresses, std::function<bool()> goesOn);
    ~ConnectionGuard();

private:
    Q_DISABLE_COPY(ConnectionGuard)

    void watch();

    const QByteArray m_addresses;
    const std::function<bool()> m_goesOn;
    std::set<QByteArray> m_before; ///< the sockets that were open before, by their names in the process table
    std::atomic<bool> m_isOver{false};
    std::thread m_thread;
};
