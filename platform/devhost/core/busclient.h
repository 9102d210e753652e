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
 * Something that talks to the session bus over a connection of its own. It lives on a BusThread, because
 * making a connection blocks, and asks first whether the bus answers: the library below waits for a silent
 * bus without a bound, on a thread that all of the process's connections share, the plugin's too.
 */
class BusClient : public QObject
{
    Q_OBJECT

public:
    ~BusClient() override;

    /// The first thing to happen on the thread.
    virtual void start() = 0;
    /// Ends a wait for a bus that does not answer. Any thread.
    void stopWaiting() { m_isEnding = true; }

protected:
    static constexpr int AsLongAsItTakes = -1;

    /// @p name is for people who look at the bus; each client has a connection of its own.
    explicit BusClient(const QString &name);

    /// Connects unless it is connected, and waits at most @p msecs for a bus that is silent.
    bool connectToBus(int msecs);
    /**
     * Sends @p message; the answer has to come within @p msecs milliseconds. The watcher belongs to this
     * client and keeps the connection open until it is deleted: closing a connection deletes its unfinished
     * calls, whoever still refers to them.
     */
    QDBusPendingCallWatcher *call(const QDBusMessage &message, int msecs);
    QDBusConnection bus() const { return QDBusConnection(m_connectionName); }

private:
    QString m_connectionName;
    std::atomic<bool> m_isEnding{false};
};

/// A thread for one client. Its end takes three seconds at most, whatever the bus does, and usually no time.
class BusThread
{
public:
    /// Owns @p client from here on; it starts with start().
    explicit BusThread(BusClient *client);
    ~BusThread();

    void start() { m_thread->start(); }

private:
    Q_DISABLE_COPY(BusThread)

    BusClient *m_client; ///< as long as the thread runs
    QThread *m_thread;
};

} // namespace devhost
