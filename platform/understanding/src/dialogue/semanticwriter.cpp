// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/semanticwriter.h"

namespace understanding {

namespace {

/// Appends @p text to @p json as a string with its quotes. Everything but quotes, backslashes, control
/// characters and halves of surrogate pairs stands for itself.
void appendString(QString &json, const QString &text)
{
    constexpr int escapedSize = 4;
    constexpr int hexadecimal = 16;
    constexpr ushort firstPrintable = 0x20;
    json += QLatin1Char('"');
    for (int at = 0; at < text.size(); ++at) {
        const QChar character = text.at(at);
        const bool pair =
            character.isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
        if (pair) {
            json += character;
            json += text.at(++at);
        } else if (character == QLatin1Char('"') || character == QLatin1Char('\\')) {
            json += QLatin1Char('\\');
            json += character;
        } else if (character.unicode() < firstPrintable || character.isSurrogate()) {
            json +=
                QStringLiteral("\\u%1").arg(character.unicode(), escapedSize, hexadecimal, QLatin1Char('0'));
        } else {
            json += character;
        }
    }
    json += QLatin1Char('"');
}

/// Appends @p key, which needs no escapes and ends with its colon, and @p text.
void appendMember(QString &json, QLatin1String key, const QString &text)
{
    json += key;
    appendString(json, text);
}

} // namespace

// Written without a document: building and writing one took as long as understanding the sentence. The
// members stand in the order of their keys.

QString commandJson(const Outcome &outcome)
{
    constexpr int usualSize = 400;
    QString json;
    json.reserve(usualSize);
    appendMember(json, QLatin1String(R"({"intent":{"semantic":[{"intent":)"), outcome.intent);
    json += QLatin1String(R"(,"slots":[)");
    bool first = true;
    for (const Slot &slot : outcome.slotList) {
        appendMember(json, QLatin1String(first ? R"({"name":)" : R"(,{"name":)"), slot.name);
        appendMember(json, QLatin1String(R"(,"normValue":)"), slot.normValue);
        appendMember(json, QLatin1String(R"(,"value":)"), slot.value);
        json += QLatin1Char('}');
        first = false;
    }
    return json + QLatin1String(R"(]}],"shouldEndSession":true}})");
}

QString answerJson(const QString &text)
{
    constexpr int usualSize = 300;
    QString json;
    json.reserve(usualSize);
    appendMember(json, QLatin1String(R"({"intent":{"answer":{"text":)"), text);
    json += QLatin1String(R"(},"semantic":[],"shouldEndSession":false,"voice_answer":[)");
    appendMember(json, QLatin1String(R"({"content":)"), text);
    return json + QLatin1String(R"(,"type":"TTS"}]}})");
}

} // namespace understanding
