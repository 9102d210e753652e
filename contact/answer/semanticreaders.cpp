// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "answer/semanticreaders.h"

#include "defaultlog.h"
#include "wire/latin1literal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr QLatin1String IntentKey = "intent"_latin1;
constexpr QLatin1String ShouldEndSessionKey = "shouldEndSession"_latin1;
constexpr QLatin1String AnswerKey = "answer"_latin1;
constexpr QLatin1String TextKey = "text"_latin1;
constexpr QLatin1String VoiceAnswerKey = "voice_answer"_latin1;
constexpr QLatin1String TypeKey = "type"_latin1;
constexpr QLatin1String ContentKey = "content"_latin1;
constexpr QLatin1String SpokenType = "TTS"_latin1;

/// Writes to @p text only if @p value is a string.
bool assignString(const QJsonValue &value, QString &text)
{
    if (!value.isString()) {
        return false;
    }
    text = value.toString();
    return true;
}

} // namespace

bool SemanticReader::shouldEndSession(const QJsonDocument &semantic)
{
    if (semantic.isNull()) {
        qCDebug(defaultLog) << "doc.isNull()";
        return true;
    }
    const QJsonValue intentValue = semantic.object().value(IntentKey);
    if (intentValue.isUndefined()) {
        qCDebug(defaultLog) << "intent not exist";
        return true;
    }
    const QJsonObject intent = intentValue.toObject();
    if (intent.isEmpty()) {
        qCDebug(defaultLog) << "intentObject.empty()";
        return true;
    }
    const QJsonValue shouldEnd = intent.value(ShouldEndSessionKey);
    if (shouldEnd.isUndefined()) {
        qCDebug(defaultLog) << "shouldEndSession not exist";
        return true;
    }
    // Anything but a boolean counts as the end: the user gets an answer rather than silence.
    return shouldEnd.toBool(true);
}

void SemanticReader::readVoiceAnswer(const QJsonDocument &semantic, QString &shown, QString &spoken)
{
    const QJsonObject intent = semantic.object().value(IntentKey).toObject();
    assignString(intent.value(AnswerKey).toObject().value(TextKey), shown);
    const QJsonArray voiceAnswers = intent.value(VoiceAnswerKey).toArray();
    for (const QJsonValue &value : voiceAnswers) {
        const QJsonObject voiceAnswer = value.toObject();
        if (voiceAnswer.value(TypeKey).toString() == SpokenType &&
            assignString(voiceAnswer.value(ContentKey), spoken)) {
            return;
        }
    }
}
