// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/semanticwriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace understanding {

namespace {

QString wrap(const QJsonObject &intent)
{
    const QJsonObject root{{QStringLiteral("intent"), intent}};
    return QString::fromUtf8(QJsonDocument(root).toJson(QJsonDocument::Compact));
}

} // namespace

QString commandJson(const Outcome &outcome)
{
    QJsonArray slotArray;
    for (const Slot &slot : outcome.slotList) {
        slotArray.append(QJsonObject{{QStringLiteral("name"), slot.name},
                                     {QStringLiteral("value"), slot.value},
                                     {QStringLiteral("normValue"), slot.normValue}});
    }
    const QJsonObject semantic{{QStringLiteral("intent"), outcome.intent},
                               {QStringLiteral("slots"), slotArray}};
    return wrap(QJsonObject{{QStringLiteral("semantic"), QJsonArray{semantic}},
                            {QStringLiteral("shouldEndSession"), true}});
}

QString answerJson(const QString &text)
{
    const QJsonObject speech{{QStringLiteral("type"), QStringLiteral("TTS")},
                             {QStringLiteral("content"), text}};
    return wrap(QJsonObject{{QStringLiteral("semantic"), QJsonArray()},
                            {QStringLiteral("shouldEndSession"), false},
                            {QStringLiteral("answer"), QJsonObject{{QStringLiteral("text"), text}}},
                            {QStringLiteral("voice_answer"), QJsonArray{speech}}});
}

} // namespace understanding
