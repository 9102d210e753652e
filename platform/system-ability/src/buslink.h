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
 * The process's one connection to the application. It has a thread of its own, because whoever asks blocks
 * the thread it asks from, be it the one with the windows, and a reply needs a thread that is awake. One for
 * the whole process, made by the first request; connects again when the bus was restarted.
 */
class BusLink : public QObject
{
    Q_OBJECT

public:
    static BusLink &instance();
    ~BusLink() override;

    /// Ends the thread. It is given a few seconds; whether it has ended then.
    bool end();

    /// Carries the request to its end. Returns at once; any thread.
    void send(const std::shared_ptr<PendingRequest> &request);

    /// The caller of @p request was told that it failed, and it may have been carried out all the same. The
    /// application is asked before the next request, and if it was, AbilityTrace says so. Returns at once.
    void askLater(const std::shared_ptr<PendingRequest> &request);

private:
    /// Nobody knows yet whether it was performed.
    struct Unclear
    {
        std::shared_ptr<PendingRequest> request;
        int errors = 0; ///< so often nobody could tell
    };

    BusLink();

    void askWhatBecame();
    /// What the application says about one of them.
    void take(const std::shared_ptr<PendingRequest> &request, const QDBusPendingReply<bool> &reply);

    void call(const std::shared_ptr<PendingRequest> &request);
    /// Makes a connection unless there is one that works. @return what is wrong with it, nothing when it
    /// works.
    QDBusError connectToBus(const PendingRequest &request);
    /// Not connected where nobody answers; tries again while the environment names another bus and the
    /// request has time.
    QDBusConnection openConnection(const PendingRequest &request);
    void disconnectFromBus();

    std::unique_ptr<QThread> m_thread;
    std::atomic<bool> m_isEnding{false};
    // Only touched on the thread.
    QString m_connectionName; ///< empty while there is none
    int m_connectionCount = 0;
    std::unique_ptr<Contact1Proxy> m_proxy;
    QVector<Unclear> m_unclear;
};
