// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

/// The desktop's notifications on the test's bus: keeps what the assistant asks it to show. The contacts
/// application has notifications of its own.
class NotificationServer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Notification
    {
        QString icon;
        QString summary;
        QString body;
        QStringList actions;
    };

    /// Ends the test run where the name cannot be had.
    explicit NotificationServer(const QStringList &capabilities = {});
    ~NotificationServer() override;

    const QVector<Notification> &shown() const { return m_shown; }
    Notification last() const { return m_shown.isEmpty() ? Notification() : m_shown.last(); }

public Q_SLOTS:
    Q_SCRIPTABLE QStringList GetCapabilities() const { return m_capabilities; }
    Q_SCRIPTABLE uint Notify(const QString &application, uint replaces, const QString &icon,
                             const QString &summary, const QString &body, const QStringList &actions,
                             const QVariantMap &hints, int timeout);

Q_SIGNALS:
    Q_SCRIPTABLE void ActionInvoked(uint id, const QString &action);
    Q_SCRIPTABLE void NotificationClosed(uint id, uint reason);

private:
    QDBusConnection m_bus;
    const QStringList m_capabilities;
    QVector<Notification> m_shown; ///< the first has the id 1
};
