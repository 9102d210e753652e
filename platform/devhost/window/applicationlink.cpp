// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationlink.h"

#include "cleantext.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QHash>
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

bool hasJoined(const QJsonObject &conference, const QString &account)
{
    const QJsonArray participants = conference.value(QLatin1String("participants")).toArray();
    for (const QJsonValue &participant : participants) {
        if (textOf(participant.toObject(), "account") == account) {
            return textOf(participant.toObject(), "attendance") == QLatin1String("joined");
        }
    }
    return false;
}

} // namespace

ApplicationState ApplicationState::read(const QString &snapshot)
{
    ApplicationState state;
    const QJsonDocument document = QJsonDocument::fromJson(snapshot.toUtf8());
    if (!document.isObject()) {
        return state;
    }
    state.isReached = true;
    const QJsonObject world = document.object();
    const QString account = textOf(world, "user");
    if (account.isEmpty()) {
        return state;
    }
    QHash<QString, QString> names;
    const QJsonArray people = world.value(QLatin1String("people")).toArray();
    for (const QJsonValue &person : people) {
        names.insert(textOf(person.toObject(), "account"), textOf(person.toObject(), "name"));
    }
    state.user = QStringLiteral("%1（%2）").arg(names.value(account), account);
    const QJsonArray contacts = world.value(QLatin1String("contacts")).toObject().value(account).toArray();
    QHash<QString, int> said;
    for (const QJsonValue &contact : contacts) {
        ++said[names.value(textOf(contact.toObject(), "account"))];
    }
    for (const QJsonValue &contact : contacts) {
        const QString name = names.value(textOf(contact.toObject(), "account"));
        if (!name.isEmpty() && said.value(name) == 1) {
            state.names << name;
        }
    }
    const QJsonArray conferences = world.value(QLatin1String("conferences")).toArray();
    for (const QJsonValue &value : conferences) {
        const QJsonObject conference = value.toObject();
        if (textOf(conference, "state") == QLatin1String("running") && hasJoined(conference, account)) {
            state.conferenceTitle = textOf(conference, "title");
            state.conferenceNumber = textOf(conference, "number");
        }
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
    QDBusMessage call = QDBusMessage::createMethodCall(
        serviceName(), QStringLiteral("/com/kelvane/meetlynx/admin"),
        QStringLiteral("com.kelvane.meetlynx.Admin1"), QStringLiteral("Snapshot"));
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
