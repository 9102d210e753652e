// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationlink.h"

#include "cleantext.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace devhost {

namespace {

constexpr int AnswerMsecs = 3000;
constexpr int StartMsecs = 10000;

QString serviceName()
{
    return QStringLiteral("com.kelvane.meetlynx");
}

QString textOf(const QJsonObject &object, const char *key)
{
    return cleanText(object.value(QLatin1String(key)).toString());
}

} // namespace

ApplicationState ApplicationState::read(const QString &overview)
{
    ApplicationState state;
    const QJsonDocument document = QJsonDocument::fromJson(overview.toUtf8());
    if (!document.isObject()) {
        return state;
    }
    state.isReached = true;
    const QJsonObject user = document.object().value(QLatin1String("user")).toObject();
    if (user.isEmpty()) {
        return state;
    }
    state.user = QStringLiteral("%1（%2）").arg(textOf(user, "name"), textOf(user, "account"));
    const QJsonObject conference = document.object().value(QLatin1String("conference")).toObject();
    state.conferenceTitle = textOf(conference, "title");
    state.conferenceNumber = textOf(conference, "number");
    const QJsonArray names = document.object().value(QLatin1String("names")).toArray();
    for (const QJsonValue &name : names) {
        state.names << cleanText(name.toString());
    }
    return state;
}

ApplicationLink::ApplicationLink(QObject *parent)
    : QObject(parent)
    , m_watcher(serviceName(), QDBusConnection::sessionBus())
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &ApplicationLink::refresh);
}

void ApplicationLink::refresh()
{
    if (!QDBusConnection::sessionBus().isConnected()) {
        take({});
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(serviceName(), QStringLiteral("/com/kelvane/meetlynx"),
                                                       QStringLiteral("com.kelvane.meetlynx.Contact1"),
                                                       QStringLiteral("Overview"));
    call.setAutoStartService(false);
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call, AnswerMsecs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QString> reply = *watcher;
        watcher->deleteLater();
        take(reply.isError() ? ApplicationState() : ApplicationState::read(reply.value()));
    });
}

void ApplicationLink::openWindow()
{
    QDBusMessage call = QDBusMessage::createMethodCall(serviceName(), QStringLiteral("/com/kelvane/meetlynx"),
                                                       QStringLiteral("com.kelvane.meetlynx.Contact1"),
                                                       QStringLiteral("Request"));
    call << QStringLiteral("Open Conference List") << QString() << qlonglong(0) << QString();
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call, StartMsecs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QString> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError()) {
            Q_EMIT windowRefused();
        }
    });
}

void ApplicationLink::take(const ApplicationState &state)
{
    m_state = state;
    Q_EMIT changed();
}

} // namespace devhost
