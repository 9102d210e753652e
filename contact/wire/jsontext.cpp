// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "wire/jsontext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

bool needsEscaping(QChar character)
{
    // A surrogate only if it stands alone; Qt finds out.
    return character < QLatin1Char(' ') || character == QLatin1Char('"') || character == QLatin1Char('\\') ||
           character.isSurrogate();
}

} // namespace

QString compactText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void appendQuoted(QString &json, const QString &text)
{
    if (std::none_of(text.cbegin(), text.cend(), needsEscaping)) {
        json += QLatin1Char('"');
        json += text;
        json += QLatin1Char('"');
        return;
    }
    const QString array = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    json += array.midRef(1, array.size() - 2); // without the brackets
}
