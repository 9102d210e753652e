// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

/// A notification server on its own connection, which records the notifications sent to it.
class NotificationServer : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown
    {
        uint id = 0;
        uint replacesId = 0;
        QString icon;
        QString summary;
        QString body;
        QStringList actions;
    };
    /// How the server treats notifications.
    enum class Mood { Shows, Refuses, Silent };

    explicit NotificationServer(const QStringList &capabilities = {QStringLiteral("actions"),
                                                                   QStringLiteral("body")});
    ~NotificationServer() override;

    /// Records only notifications of @p program from now on; others may use the same bus.
    void listenTo(const QString &program) { m_program = program; }
    Shown last() const { return shown.isEmpty() ? Shown() : shown.last(); }

    QStringList summaries() const;
    bool isOnScreen(uint id) const { return m_onScreen.contains(id); }
    void click(uint id, const QString &action);
    /// Dismisses the notification as the user would.
    void dismiss(uint id);
    /// Waits until the bus has received everything sent, without processing events.
    void flush();

    Mood mood = Mood::Shows;
    QString clickAtOnce;  ///< an action of each notification that is invoked before its id is answered
    QVector<Shown> shown; ///< all so far, including replaced ones
    int attempts = 0;     ///< including those not shown

public Q_SLOTS:
    Q_SCRIPTABLE QStringList GetCapabilities() const { return m_capabilities; }
    Q_SCRIPTABLE uint Notify(const QString &application, uint replacesId, const QString &icon,
                             const QString &summary, const QString &body, const QStringList &actions,
                             const QVariantMap &hints, int timeout);
    Q_SCRIPTABLE void CloseNotification(uint id);

Q_SIGNALS:
    Q_SCRIPTABLE void ActionInvoked(uint id, const QString &action);
    Q_SCRIPTABLE void NotificationClosed(uint id, uint reason);

private:
    QString m_connectionName;
    QDBusConnection m_connection;
    QStringList m_capabilities;
    QString m_program; ///< empty for any program
    QVector<uint> m_onScreen;
    uint m_lastId = 0;
};
