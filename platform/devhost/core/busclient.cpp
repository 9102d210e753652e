// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "busclient.h"

#include <sessionbus.h>

#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>

namespace devhost {

namespace {

/// Long enough for a loaded machine to connect and to notice; a thread that is left behind runs into the
/// process's end.
constexpr int LongestFarewellMsecs = 3000;

} // namespace

BusClient::BusClient(const QString &name)
{
    // A client that its thread could not end in time still has its connection: the next one must not share
    // it, nor lose it when the former goes.
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
    // A connection's functor goes in QObject's destructor, after the watcher's reference to its call.
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
    // Looked at again and again, because a bounded wait goes by the calendar in some surroundings and ends at
    // once where that is set: a thread left behind then ran into the process's end.
    QElapsedTimer timer;
    timer.start();
    while (!m_thread->isFinished() && timer.elapsed() < LongestFarewellMsecs) {
        QThread::msleep(1);
    }
    if (m_thread->isFinished()) {
        m_thread->wait();
        delete m_thread;
    }
    // Else the bus fell silent in the middle of a call: left to the process's end.
}

} // namespace devhost
