// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/semanticwriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

#include <algorithm>

// The text is written straight away, in the order of the keys that QJsonObject would give it: building
// objects first took as long as two thirds of the reading.

namespace understanding {

namespace {

bool isLeftToQt(QChar character)
{
    return character < QLatin1Char(' ') || character.isSurrogate();
}

/// Returns @p text as a JSON string with its quotes.
QString quoted(QString text)
{
    if (std::any_of(text.cbegin(), text.cend(), isLeftToQt)) {
        const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
        return QString::fromUtf8(array.mid(1, array.size() - 2)); // without the brackets
    }
    text.replace(QLatin1Char('\\'), QLatin1String(R"(\\)"));
    text.replace(QLatin1Char('"'), QLatin1String(R"(\")"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

QString commandJson(const Outcome &outcome)
{
    QStringList slotTexts;
    for (const Slot &slot : outcome.slotList) {
        slotTexts.append(QLatin1String(R"({"name":)") + quoted(slot.name) +
                         QLatin1String(R"(,"normValue":)") + quoted(slot.normValue) +
                         QLatin1String(R"(,"value":)") + quoted(slot.value) + QLatin1Char('}'));
    }
    return QLatin1String(R"({"intent":{"semantic":[{"intent":)") + quoted(outcome.intent) +
           QLatin1String(R"(,"slots":[)") + slotTexts.join(QLatin1Char(',')) +
           QLatin1String(R"(]}],"shouldEndSession":true}})");
}

QString answerJson(const QString &text)
{
    const QString content = quoted(text);
    return QLatin1String(R"({"intent":{"answer":{"text":)") + content +
           QLatin1String(R"(},"semantic":[],"shouldEndSession":false,"voice_answer":[{"content":)") +
           content + QLatin1String(R"(,"type":"TTS"}]}})");
}

} // namespace understanding
