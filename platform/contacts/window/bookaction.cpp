// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/bookaction.h"

#include "book/contactsbook.h"
#include "core/jsonkeys.h"

#include <QJsonDocument>

QString performAction(ContactsBook &book, const QString &action, const QJsonObject &parameters)
{
    const QString text = QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact));
    const QByteArray answer = book.perform(action, text).toUtf8();
    return QJsonDocument::fromJson(answer).object().value(JsonKey::Ret).toString();
}
