// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "busclient.h"

#include <sessionbus.h>

#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>

namespace devhost {

namespace {

/// Long enough for a loaded machine to connect and to notice the end; a thread left behind races with the
/// process's exit.
constexpr int LongestFarewellMsecs = 3000;

} // namespace

BusClient::BusClient(const QString &name)
{
    // A client whose thread could not be ended in time still has its connection; the next client must neither
    // share it nor lose it when the earlier one goes.
    static std::atomic<int> count{0};
    m_connectionName = QStringLiteral("%1-%2").arg(name).arg(++count);
}

BusClient::~BusClient()
{
    QDBusConnection::disconnectFromBus(m_connectionName);
}

bool BusClient::connectToBus(int msecs)
{
    if (bus().isConnected()) {
        return true;
    }
    QDBusConnection::disconnectFromBus(m_connectionName);
    QElapsedTimer timer;
    timer.start();
    return SessionBus::connect(m_connectionName,
                               [this, msecs, &timer] {
                                   return !m_isEnding &&
                                          (msecs == AsLongAsItTakes || timer.elapsed() < msecs);
                               })
        .isConnected();
}

QDBusPendingCallWatcher *BusClient::call(const QDBusMessage &message, int msecs)
{
    auto *watcher = new QDBusPendingCallWatcher(bus().asyncCall(message, msecs), this);
    // QObject's destructor deletes the connection's functor, which is after the watcher has dropped its
    // reference to the call.
    connect(watcher, &QObject::destroyed, watcher, [open = bus()] { Q_UNUSED(open) });
    return watcher;
}

BusThread::BusThread(BusClient *client) : m_client(client), m_thread(new QThread)
{
    client->moveToThread(m_thread);
    QObject::connect(m_thread, &QThread::started, client, &BusClient::start);
    QObject::connect(m_thread, &QThread::finished, client, &QObject::deleteLater);
}

BusThread::~BusThread()
{
    m_client->stopWaiting();
    m_thread->quit();
    // Polled, because a bounded wait may follow the wall clock and end at once when that is set; a thread
    // left behind then raced with the process's exit.
    QElapsedTimer timer;
    timer.start();
    while (!m_thread->isFinished() && timer.elapsed() < LongestFarewellMsecs) {
        QThread::msleep(1);
    }
    if (m_thread->isFinished()) {
        m_thread->wait();
        delete m_thread;
    }
    // Otherwise the bus fell silent during a call: left until the process exits.
}

} // namespace devhost
