// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationasker.h"

#include "busnames.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace devhost {

namespace {

constexpr int AnswerMsecs = 3000;
constexpr int StartMsecs = 10000;

} // namespace

ApplicationAsker::ApplicationAsker() : BusClient(QStringLiteral("speakmate-application")) {}

bool ApplicationAsker::reachBus()
{
    if (bus().isConnected()) {
        return true;
    }
    delete m_watcher; // of a connection that is gone
    m_watcher = nullptr;
    if (!connectToBus(AnswerMsecs)) {
        return false;
    }
    m_watcher =
        new QDBusServiceWatcher(BusName::service(), bus(), QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &ApplicationAsker::ask);
    return true;
}

void ApplicationAsker::ask()
{
    if (m_isAsking) {
        m_askAgain = true;
        return;
    }
    if (!reachBus()) {
        Q_EMIT told({});
        return;
    }
    m_isAsking = true;
    m_askAgain = false;
    QDBusMessage message = BusName::contactCall(QStringLiteral("Overview"));
    message.setAutoStartService(false);
    QDBusPendingCallWatcher *watcher = call(message, AnswerMsecs);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QString> reply = *watcher;
        watcher->deleteLater();
        m_isAsking = false;
        Q_EMIT told(reply.isError() ? QString() : reply.value());
        if (m_askAgain) {
            ask();
        }
    });
}

void ApplicationAsker::openWindow()
{
    if (!reachBus()) {
        Q_EMIT windowRefused();
        return;
    }
    QDBusPendingCallWatcher *watcher = call(BusName::windowRequest(0), StartMsecs);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QString> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError()) {
            Q_EMIT windowRefused();
        }
    });
}

} // namespace devhost
