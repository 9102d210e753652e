// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "secrets.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace devhost {

namespace {

void collect(const QJsonValue &value, QStringList &secrets)
{
    if (value.isArray()) {
        const QJsonArray items = value.toArray();
        for (const QJsonValue &item : items) {
            collect(item, secrets);
        }
        return;
    }
    const QJsonObject object = value.toObject();
    if (object.value(QLatin1String("name")).toString() == QLatin1String("password")) {
        for (const QLatin1String key : {QLatin1String("value"), QLatin1String("normValue")}) {
            const QString secret = object.value(key).toString();
            if (!secret.isEmpty() && !secrets.contains(secret)) {
                secrets.append(secret);
            }
        }
        return;
    }
    for (const QJsonValue &member : object) {
        collect(member, secrets);
    }
}

} // namespace

QString secretMask()
{
    return QStringLiteral("••••");
}

QStringList secretsIn(const QString &semantic)
{
    const QJsonDocument document = QJsonDocument::fromJson(semantic.toUtf8());
    QStringList secrets;
    if (document.isArray()) {
        collect(document.array(), secrets);
    } else {
        collect(document.object(), secrets);
    }
    return secrets;
}

QString withoutSecrets(QString text, const QStringList &secrets)
{
    for (const QString &secret : secrets) {
        text.replace(secret, secretMask());
    }
    return text;
}

} // namespace devhost
