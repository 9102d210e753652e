// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// How ContactUtils writes the parameters of requests that need no clock.

#include "contactutils.h"
#include "wire/jsontext.h"
#include "wire/requestkeys.h"

#include <QDebug>
#include <QJsonArray>
#include <QSet>

QString ContactUtils::addbuddyParamInit(const QString &name)
{
    // The spoken name as it is: the application finds out who that is.
    return compactText({{RequestKey::UserId, name}});
}

QString ContactUtils::deleteParamInit(const QString &confId)
{
    return compactText({{RequestKey::ConferenceId, confId}});
}

QString ContactUtils::joinParamInit(const QString &confId, const QString &password)
{
    return compactText({{RequestKey::ConferenceId, confId}, {RequestKey::Password, password}});
}

QString ContactUtils::inviteParamInit(const QVector<QString> &names)
{
    QJsonArray members;
    QSet<QString> known;
    for (const QString &name : names) {
        if (name.isEmpty() || known.contains(name)) {
            continue;
        }
        known.insert(name);
        members.append(QJsonObject{{RequestKey::Name, name}, {RequestKey::UserId, QString()}});
    }
    const QJsonObject object{{RequestKey::Members, members}};
    qDebug() << "jsonObjMember:" << object;
    return compactText(object);
}

QString ContactUtils::vectorToString(const QVector<QString> &names)
{
    return QStringList(names.toList()).join(QStringLiteral("、"));
}
