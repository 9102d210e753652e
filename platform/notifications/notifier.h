// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "notification.h"

#include <QDBusConnection>
#include <QObject>
#include <QVector>

#include <functional>
#include <optional>

class QDBusMessage;
class QDBusPendingCall;

/// A client of the desktop's notification server. Never blocks on it. Use on the thread that created it.
class Notifier : public QObject
{
    Q_OBJECT

public:
    enum class Result {
        Shown,
        Unclear, ///< the server did not answer in time; it may show the notification or not
        Refused, ///< there is no server, or it does not want it
    };
    /// The id is 0 when the notification is not shown.
    using Done = std::function<void(Result, quint32 id)>;

    /// The sender of these notifications, as the user and the desktop see it.
    struct Program
    {
        QString name;
        QString icon;         ///< its name in the icon theme
        QString desktopEntry; ///< the name of its desktop file, without ".desktop"
    };

    Notifier(const QDBusConnection &connection, const Program &program, QObject *parent = nullptr);

    /// Calls @p done once, later, unless this object is deleted first.
    void show(const Notification &notification, Done done);
    void close(quint32 id);

Q_SIGNALS:
    /// This and closed() come after show() has told the id, however quick the user was.
    void actionInvoked(quint32 id, const QString &action);
    void closed(quint32 id);
    /// A server has appeared; it shows nothing yet.
    void serverCame();
    void serverWent();

private Q_SLOTS:
    void onActionInvoked(uint id, const QString &action, const QDBusMessage &message);
    void onClosed(uint id, uint reason, const QDBusMessage &message);

private:
    /// What a server says of one of its notifications.
    struct Signal
    {
        QString sender;
        quint32 id = 0;
        std::optional<QString> action; ///< nothing if the notification was closed
    };
    void send(const Notification &notification, Done done);
    QDBusPendingCall call(const QString &method, const QVariantList &arguments);
    void followServer();
    void hear(const Signal &signal);
    void pass(const Signal &signal);

    QDBusConnection m_connection;
    const Program m_program;
    QString m_server;        ///< the unique name of who showed something; only its signals count
    int m_unanswered = 0;    ///< notifications whose id is not known yet
    QVector<Signal> m_early; ///< heard meanwhile, in order
    std::optional<QStringList> m_capabilities; ///< of the server that is there; unknown until somebody asks
};
