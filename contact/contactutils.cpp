// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactutils.h"

#include "request/requesttexts.h"

#include <QDebug>

ContactUtils *ContactUtils::instance()
{
    static ContactUtils utils;
    return &utils;
}

QString ContactUtils::addbuddyParamInit(const QString &name)
{
    return RequestText::addFriend(name);
}

QString ContactUtils::deleteParamInit(const QString &confId)
{
    return RequestText::deleteConference(confId);
}

QString ContactUtils::joinParamInit(const QString &confId, const QString &password)
{
    return RequestText::joinConference(confId, password);
}

QString ContactUtils::inviteParamInit(const QVector<QString> &names)
{
    QVector<QString> spoken = names;
    spoken.removeAll(QString());
    const QString text = RequestText::inviteMembers(RequestText::membersNamed(spoken));
    // The debug form of the object, without building the object again.
    qDebug().noquote() << "jsonObjMember:" << QStringLiteral("QJsonObject(%1)").arg(text);
    return text;
}

QString ContactUtils::vectorToString(const QVector<QString> &names)
{
    return QStringList(names.toList()).join(QStringLiteral("、"));
}
