// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

/// A notification server on a connection of its own, which remembers what it was sent.
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
    /// How it takes what it is sent.
    enum class Mood { Shows, Refuses, Silent };

    explicit NotificationServer(const QStringList &capabilities = {QStringLiteral("actions"),
                                                                   QStringLiteral("body")});
    ~NotificationServer() override;

    /// From here on only those of @p program are remembered; others may notify on the same bus.
    void listenTo(const QString &program) { m_program = program; }
    Shown last() const { return shown.isEmpty() ? Shown() : shown.last(); }

    QStringList summaries() const;
    bool isOnScreen(uint id) const { return m_onScreen.contains(id); }
    void click(uint id, const QString &action);
    /// As the user does it.
    void dismiss(uint id);
    /// Waits, without handling any events, until the bus has what was sent.
    void flush();

    Mood mood = Mood::Shows;
    QVector<Shown> shown; ///< all there ever were, also replaced ones
    int attempts = 0;     ///< also those that it did not take

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
    QString m_program; ///< everybody's while empty
    QVector<uint> m_onScreen;
    uint m_lastId = 0;
};
