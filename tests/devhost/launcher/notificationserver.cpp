// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notificationserver.h"

namespace {

const QLatin1String ConnectionName("notification-server");

} // namespace

NotificationServer::NotificationServer(const QStringList &capabilities)
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName))
    , m_capabilities(capabilities)
{
    if (!m_bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                              QDBusConnection::ExportScriptableContents) ||
        !m_bus.registerService(QStringLiteral("org.freedesktop.Notifications"))) {
        qFatal("the test's notifications cannot be put on the bus");
    }
}

NotificationServer::~NotificationServer()
{
    QDBusConnection::disconnectFromBus(ConnectionName);
}

uint NotificationServer::Notify(const QString &application, uint /*replaces*/, const QString &icon,
                                const QString &summary, const QString &body, const QStringList &actions,
                                const QVariantMap & /*hints*/, int /*timeout*/)
{
    constexpr uint another = 1000;
    if (application != QStringLiteral("语音助手")) {
        return another;
    }
    m_shown.append({icon, summary, body, actions});
    return uint(m_shown.size());
}
