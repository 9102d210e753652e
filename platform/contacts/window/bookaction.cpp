// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/bookaction.h"

#include "book/contactsbook.h"
#include "core/jsonkeys.h"

#include <QJsonDocument>

QJsonObject askBook(ContactsBook &book, const QString &action, const QJsonObject &parameters)
{
    const QString text = QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact));
    return QJsonDocument::fromJson(book.perform(action, text).toUtf8()).object();
}

QString performAction(ContactsBook &book, const QString &action, const QJsonObject &parameters)
{
    return askBook(book, action, parameters).value(JsonKey::Ret).toString();
}
