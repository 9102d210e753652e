// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notifier.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDebug>

namespace {

constexpr int TimeoutMsecs = 5000;
const auto Service = QLatin1String("org.freedesktop.Notifications");
const auto Path = QLatin1String("/org/freedesktop/Notifications");

Notifier::Result resultOf(const QDBusError &error)
{
    switch (error.type()) {
    case QDBusError::NoReply:
    case QDBusError::TimedOut:
    case QDBusError::Timeout:
        return Notifier::Result::Unclear;
    default:
        return Notifier::Result::Refused;
    }
}

} // namespace

Notifier::Notifier(const QDBusConnection &connection, const Program &program, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
    , m_program(program)
{
    followServer();
    // Without the service's name: given one, Qt would look up its owner here and block on the bus.
    const bool hears = m_connection.connect(QString(), Path, Service, QStringLiteral("ActionInvoked"), this,
                                            SLOT(onActionInvoked(uint, QString, QDBusMessage))) &&
                       m_connection.connect(QString(), Path, Service, QStringLiteral("NotificationClosed"),
                                            this, SLOT(onClosed(uint, uint, QDBusMessage)));
    if (!hears) {
        qWarning() << "Clicks on notifications cannot be heard:" << m_connection.lastError().message();
    }
}

void Notifier::followServer()
{
    auto *watcher =
        new QDBusServiceWatcher(Service, m_connection, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &former, const QString &owner) {
                m_capabilities.reset();
                m_server.clear();
                m_early.clear();
                if (!former.isEmpty()) {
                    Q_EMIT serverWent();
                }
                if (!owner.isEmpty()) {
                    Q_EMIT serverCame();
                }
            });
}

QDBusPendingCall Notifier::call(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(Service, Path, Service, method);
    message.setArguments(arguments);
    return m_connection.asyncCall(message, TimeoutMsecs);
}

void Notifier::show(const Notification &notification, Done done)
{
    if (m_capabilities) {
        send(notification, std::move(done));
        return;
    }
    auto *watcher =
        new QDBusPendingCallWatcher(call(QStringLiteral("GetCapabilities"), QVariantList()), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, notification, done] {
        watcher->deleteLater();
        const QDBusPendingReply<QStringList> reply = *watcher;
        if (reply.isError()) {
            qInfo() << "No notification server answers:" << reply.error().message();
            done(Result::Refused, 0); // nothing has been sent
            return;
        }
        m_capabilities = reply.value();
        send(notification, done);
    });
}

void Notifier::send(const Notification &notification, Done done)
{
    const bool readsMarkup = m_capabilities->contains(QLatin1String("body-markup"));
    const QString body = readsMarkup ? notification.body.toHtmlEscaped() : notification.body;
    const QStringList actions =
        m_capabilities->contains(QLatin1String("actions")) ? notification.actions : QStringList();
    constexpr uchar normalUrgency = 1;
    const QVariantMap hints{{QStringLiteral("desktop-entry"), m_program.desktopEntry},
                            {QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)}};
    constexpr int asTheServerLikes = -1;
    const QDBusPendingCall sent =
        call(QStringLiteral("Notify"), {m_program.name, notification.replacesId, m_program.icon,
                                        notification.summary, body, actions, hints, asTheServerLikes});
    ++m_unanswered;
    auto *watcher = new QDBusPendingCallWatcher(sent, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, done = std::move(done)] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isError()) {
            qWarning() << "A notification was not taken:" << reply.error().message();
            done(resultOf(reply.error()), 0);
        } else {
            m_server = reply.reply().service();
            done(Result::Shown, reply.value());
        }
        --m_unanswered;
        while (m_unanswered == 0 && !m_early.isEmpty()) {
            pass(m_early.takeFirst());
        }
    });
}

void Notifier::close(quint32 id)
{
    call(QStringLiteral("CloseNotification"), {id});
}

void Notifier::onActionInvoked(uint id, const QString &action, const QDBusMessage &message)
{
    hear({message.service(), id, action});
}

void Notifier::onClosed(uint id, uint, const QDBusMessage &message)
{
    hear({message.service(), id, std::nullopt});
}

void Notifier::hear(const Signal &signal)
{
    // A signal can overtake the answer that tells the id: a watcher that is created when the answer has come
    // already needs one more turn of the event loop.
    if (m_unanswered > 0) {
        m_early.append(signal);
    } else {
        pass(signal);
    }
}

void Notifier::pass(const Signal &signal)
{
    if (signal.sender != m_server) {
        return;
    }
    if (signal.action) {
        Q_EMIT actionInvoked(signal.id, *signal.action);
    } else {
        Q_EMIT closed(signal.id);
    }
}
