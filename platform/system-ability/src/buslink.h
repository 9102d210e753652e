// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QObject>
#include <QThread>
#include <QVector>

#include <atomic>
#include <memory>

class Contact1Proxy;
class PendingRequest;

/**
 * The process's one connection to the application, created by the first request; reconnects when the bus was
 * restarted. Has a thread of its own, because callers block theirs, the GUI thread included, and receiving a
 * reply needs a thread that is awake.
 */
class BusLink : public QObject
{
    Q_OBJECT

public:
    static BusLink &instance();
    ~BusLink() override;

    /// Ends the thread within a few seconds. Returns whether it has ended.
    bool end();

    /// Sends the request and sees it to its end. Returns at once; any thread.
    void send(const std::shared_ptr<PendingRequest> &request);

    /// The caller of @p request was told that it failed, but it may have been carried out. Asks the
    /// application before the next request, and lets AbilityTrace report it if it was. Returns at once.
    void askLater(const std::shared_ptr<PendingRequest> &request);

private:
    /// A request that may or may not have been performed.
    struct Unclear
    {
        std::shared_ptr<PendingRequest> request;
        int errors = 0; ///< how often the application could not tell
    };

    BusLink();

    void askWhatBecame();
    /// The application's answer about one of them.
    void take(const std::shared_ptr<PendingRequest> &request, const QDBusPendingReply<bool> &reply);

    void call(const std::shared_ptr<PendingRequest> &request);
    /// Connects unless connected. @return the error; empty when there is a working connection.
    QDBusError connectToBus(const PendingRequest &request);
    /// Returns an unconnected one where nobody answers; retries while the environment names another bus and
    /// the request has time.
    QDBusConnection openConnection(const PendingRequest &request);
    void disconnectFromBus();

    std::unique_ptr<QThread> m_thread;
    std::atomic<bool> m_isEnding{false};
    // Only used on the thread.
    QString m_connectionName; ///< empty while there is none
    int m_connectionCount = 0;
    std::unique_ptr<Contact1Proxy> m_proxy;
    QVector<Unclear> m_unclear;
};
