// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notificationserver.h"

#include <QDBusConnectionInterface>
#include <QUuid>

namespace {

const auto Service = QStringLiteral("org.freedesktop.Notifications");

} // namespace

NotificationServer::NotificationServer(const QStringList &capabilities)
    : m_connectionName(QUuid::createUuid().toString())
    , m_connection(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connectionName))
    , m_capabilities(capabilities)
{
    const bool isThere = m_connection.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                                     QDBusConnection::ExportScriptableContents) &&
                         m_connection.registerService(Service);
    if (!isThere) {
        qFatal("Cannot put the notification server on the bus.");
    }
}

NotificationServer::~NotificationServer()
{
    m_connection.unregisterService(Service);
    QDBusConnection::disconnectFromBus(m_connectionName);
}

QStringList NotificationServer::summaries() const
{
    QStringList summaries;
    for (const Shown &notification : shown) {
        summaries.append(notification.summary);
    }
    return summaries;
}

void NotificationServer::click(uint id, const QString &action)
{
    Q_EMIT ActionInvoked(id, action);
    dismiss(id);
}

void NotificationServer::dismiss(uint id)
{
    constexpr uint byUser = 2;
    m_onScreen.removeAll(id);
    Q_EMIT NotificationClosed(id, byUser);
}

void NotificationServer::flush()
{
    m_connection.interface()->isServiceRegistered(Service);
}

uint NotificationServer::Notify(const QString &application, uint replacesId, const QString &icon,
                                const QString &summary, const QString &body, const QStringList &actions,
                                const QVariantMap &, int)
{
    if (!m_program.isEmpty() && application != m_program) {
        return ++m_lastId;
    }
    ++attempts;
    if (mood == Mood::Refuses) {
        sendErrorReply(QDBusError::Failed, QStringLiteral("too many"));
        return 0;
    }
    if (mood == Mood::Silent) {
        setDelayedReply(true);
        return 0;
    }
    const uint id = replacesId != 0 ? replacesId : ++m_lastId;
    if (!m_onScreen.contains(id)) {
        m_onScreen.append(id);
    }
    shown.append({id, replacesId, icon, summary, body, actions});
    if (!clickAtOnce.isEmpty()) {
        Q_EMIT ActionInvoked(id, clickAtOnce);
    }
    return id;
}

void NotificationServer::CloseNotification(uint id)
{
    constexpr uint byCall = 3;
    m_onScreen.removeAll(id);
    Q_EMIT NotificationClosed(id, byCall);
}
