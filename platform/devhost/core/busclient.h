// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QThread>

#include <atomic>

QT_BEGIN_NAMESPACE
class QDBusMessage;
class QDBusPendingCallWatcher;
QT_END_NAMESPACE

namespace devhost {

/**
 * A client of the session bus with its own connection. It lives on a BusThread, because connecting
 * blocks, and first probes whether the bus answers: libdbus waits for a silent bus without a bound, on a
 * thread that all connections of the process share, the plugin's included.
 */
class BusClient : public QObject
{
    Q_OBJECT

public:
    ~BusClient() override;

    /// Runs first on the thread.
    virtual void start() = 0;
    /// Gives up waiting for a bus that does not answer. Any thread.
    void stopWaiting() { m_isEnding = true; }

protected:
    static constexpr int AsLongAsItTakes = -1;

    /// @p name shows in bus monitors.
    explicit BusClient(const QString &name);

    /// Connects unless connected, waiting at most @p msecs for a silent bus.
    bool connectToBus(int msecs);
    /**
     * Sends @p message; the answer is due within @p msecs milliseconds. The watcher belongs to this client
     * and keeps the connection open until it is deleted: closing a connection deletes its unfinished calls,
     * whoever still refers to them.
     */
    QDBusPendingCallWatcher *call(const QDBusMessage &message, int msecs);
    QDBusConnection bus() const { return QDBusConnection(m_connectionName); }

private:
    QString m_connectionName;
    std::atomic<bool> m_isEnding{false};
};

/// A thread for one client. Stopping it usually takes no time, and three seconds at most, whatever the bus
/// does.
class BusThread
{
public:
    /// Takes ownership of @p client, which runs from start() on.
    explicit BusThread(BusClient *client);
    ~BusThread();

    void start() { m_thread->start(); }

private:
    Q_DISABLE_COPY(BusThread)

    BusClient *m_client; ///< as long as the thread runs
    QThread *m_thread;
};

} // namespace devhost
