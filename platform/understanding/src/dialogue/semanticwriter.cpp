// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/semanticwriter.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

// The text is written straight away, in the order of the keys that QJsonObject would give it: building
// objects first took as long as two thirds of the reading.

namespace understanding {

namespace {

bool isLeftToQt(QChar character)
{
    return character < QLatin1Char(' ') || character.isSurrogate();
}

/// Appends @p text as a JSON string with its quotes.
void appendQuoted(QString &json, const QString &text)
{
    if (std::any_of(text.cbegin(), text.cend(), isLeftToQt)) {
        const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
        json += QString::fromUtf8(array.mid(1, array.size() - 2)); // without the brackets
        return;
    }
    json += QLatin1Char('"');
    for (const QChar character : text) {
        if (character == QLatin1Char('"') || character == QLatin1Char('\\')) {
            json += QLatin1Char('\\');
        }
        json += character;
    }
    json += QLatin1Char('"');
}

} // namespace

QString commandJson(const Outcome &outcome)
{
    constexpr int usualLength = 400;
    QString json;
    json.reserve(usualLength);
    json += QLatin1String(R"({"intent":{"semantic":[{"intent":)");
    appendQuoted(json, outcome.intent);
    json += QLatin1String(R"(,"slots":[)");
    for (const Slot &slot : outcome.slotList) {
        json += QLatin1String(&slot == outcome.slotList.cbegin() ? R"({"name":)" : R"(,{"name":)");
        appendQuoted(json, slot.name);
        json += QLatin1String(R"(,"normValue":)");
        appendQuoted(json, slot.normValue);
        json += QLatin1String(R"(,"value":)");
        appendQuoted(json, slot.value);
        json += QLatin1Char('}');
    }
    json += QLatin1String(R"(]}],"shouldEndSession":true}})");
    return json;
}

QString answerJson(const QString &text)
{
    QString content;
    appendQuoted(content, text);
    return QLatin1String(R"({"intent":{"answer":{"text":)") + content +
           QLatin1String(R"(},"semantic":[],"shouldEndSession":false,"voice_answer":[{"content":)") +
           content + QLatin1String(R"(,"type":"TTS"}]}})");
}

} // namespace understanding
