// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notifier.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace devhost {

namespace {

constexpr int AnswerMsecs = 3000;

const QLatin1String Service("org.freedesktop.Notifications");
const QLatin1String Path("/org/freedesktop/Notifications");

QDBusMessage callOf(const QString &method)
{
    return QDBusMessage::createMethodCall(Service, Path, Service, method);
}

} // namespace

Notifier::Notifier(const QDBusConnection &bus, QObject *parent) : QObject(parent), m_bus(bus)
{
    m_bus.connect(Service, Path, Service, QStringLiteral("ActionInvoked"), this,
                  SLOT(noteAction(uint, QString)));
    m_bus.connect(Service, Path, Service, QStringLiteral("NotificationClosed"), this,
                  SLOT(noteClosed(uint, uint)));
}

void Notifier::notify(const QString &title, const QString &text)
{
    // Servers that take markup would eat "<" and "&"; the others would show them escaped.
    auto *watcher = new QDBusPendingCallWatcher(
        m_bus.asyncCall(callOf(QStringLiteral("GetCapabilities")), AnswerMsecs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, title, text] {
        const QDBusPendingReply<QStringList> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError()) {
            Q_EMIT refused();
        } else {
            send(title, text, reply.value().contains(QLatin1String("body-markup")));
        }
    });
}

void Notifier::send(const QString &title, const QString &text, bool isMarkup)
{
    constexpr int serversChoice = -1;
    QDBusMessage call = callOf(QStringLiteral("Notify"));
    call << QStringLiteral("语音助手") << uint(0) << QStringLiteral("speakmate-devhost") << title
         << (isMarkup ? text.toHtmlEscaped() : text)
         << QStringList{QStringLiteral("default"), QStringLiteral("打开")}
         << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("speakmate-devhost")}}
         << serversChoice;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, AnswerMsecs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<uint> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError()) {
            Q_EMIT refused();
        } else {
            m_shown.append(reply.value());
        }
    });
}

void Notifier::noteAction(uint id, const QString &action)
{
    if (m_shown.contains(id) && action == QLatin1String("default")) {
        Q_EMIT clicked();
    }
}

void Notifier::noteClosed(uint id, uint)
{
    m_shown.removeAll(id);
}

} // namespace devhost
