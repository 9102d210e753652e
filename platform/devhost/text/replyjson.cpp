// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "replyjson.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace devhost {

namespace {

/// @p text as a JSON string. Qt writes objects with sorted keys, so it only encodes the values.
QByteArray quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QByteArray cardJson(const CardNote &card)
{
    QByteArray json = "{\"class\":" + quoted(card.className) +
                      ",\"width\":" + QByteArray::number(card.width) +
                      ",\"height\":" + QByteArray::number(card.height);
    if (!card.screenshot.isEmpty()) {
        json += ",\"screenshot\":" + quoted(card.screenshot);
    }
    return json + '}';
}

} // namespace

QByteArray replyJson(const Reply &reply, const CardNote *card)
{
    return "{\"code\":" + QByteArray::number(reply.code.toInt()) +
           ",\"display\":" + quoted(reply.displayText.toString()) +
           ",\"speech\":" + quoted(reply.speechText.toString()) +
           ",\"type\":" + QByteArray::number(reply.type) +
           ",\"card\":" + (card != nullptr ? cardJson(*card) : QByteArrayLiteral("null")) + '}';
}

} // namespace devhost
