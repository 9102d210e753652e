// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationlink.h"

#include "applicationasker.h"
#include "cleantext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace devhost {

namespace {

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
    state.user = ApplicationLink::tr("%1 (%2)").arg(textOf(user, "name"), textOf(user, "account"));
    const QJsonObject conference = document.object().value(QLatin1String("conference")).toObject();
    state.conferenceTitle = textOf(conference, "title");
    state.conferenceNumber = textOf(conference, "number");
    const QJsonArray names = document.object().value(QLatin1String("names")).toArray();
    for (const QJsonValue &name : names) {
        state.names << cleanText(name.toString());
    }
    return state;
}

ApplicationLink::ApplicationLink(QObject *parent) : ApplicationLink(new ApplicationAsker, parent) {}

ApplicationLink::ApplicationLink(ApplicationAsker *asker, QObject *parent)
    : QObject(parent)
    , m_asker(asker)
    , m_thread(asker)
{
    connect(asker, &ApplicationAsker::told, this, [this](const QString &overview) {
        m_state = ApplicationState::read(overview);
        Q_EMIT changed();
    });
    connect(asker, &ApplicationAsker::windowRefused, this, &ApplicationLink::windowRefused);
    m_thread.start();
}

void ApplicationLink::refresh()
{
    QMetaObject::invokeMethod(m_asker, &ApplicationAsker::ask, Qt::QueuedConnection);
}

void ApplicationLink::openWindow()
{
    QMetaObject::invokeMethod(m_asker, &ApplicationAsker::openWindow, Qt::QueuedConnection);
}

} // namespace devhost
