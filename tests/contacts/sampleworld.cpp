// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include <QDateTime>
#include <QJsonDocument>

SampleWorld::SampleWorld()
    : nowMsecs(at("2026-03-07T10:20"))
    , book(folder.filePath(QStringLiteral("contacts.db")), [this] { return nowMsecs; })
    , admin(book)
{
}

QJsonObject SampleWorld::ask(const QString &action, const QString &parameters)
{
    return QJsonDocument::fromJson(book.perform(action, parameters).toUtf8()).object();
}

QJsonObject SampleWorld::ask(const QString &action, const QJsonObject &parameters)
{
    return ask(action, QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact)));
}

QJsonObject SampleWorld::snapshot()
{
    return QJsonDocument::fromJson(admin.Snapshot().toUtf8()).object();
}

QJsonArray SampleWorld::conferences()
{
    return snapshot().value(QLatin1String("conferences")).toArray();
}

QJsonObject SampleWorld::conference(const QString &number)
{
    const QJsonArray all = conferences();
    for (const QJsonValue &value : all) {
        if (value.toObject().value(QLatin1String("number")).toString() == number) {
            return value.toObject();
        }
    }
    return {};
}

QString SampleWorld::conferenceId(const QString &number)
{
    return conference(number).value(QLatin1String("conferenceId")).toString();
}

qint64 at(const char *localTime)
{
    return QDateTime::fromString(QLatin1String(localTime), QStringLiteral("yyyy-MM-ddThh:mm"))
        .toMSecsSinceEpoch();
}

QJsonObject membersNamed(const QStringList &names)
{
    QJsonArray members;
    for (const QString &name : names) {
        members.append(QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("userId"), QString()}});
    }
    return {{QStringLiteral("members"), members}};
}
