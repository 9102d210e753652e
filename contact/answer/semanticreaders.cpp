// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// How ContactUtils reads the understanding service's own keys.

#include "contactutils.h"
#include "wire/latin1literal.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// {"intent": {"shouldEndSession": false, "answer": {"text": "几点开始？"},
//             "voice_answer": [{"type": "TTS", "content": "请问几点开始？"}]}}
constexpr QLatin1String IntentKey = "intent"_latin1;
constexpr QLatin1String ShouldEndSessionKey = "shouldEndSession"_latin1;
constexpr QLatin1String AnswerKey = "answer"_latin1;
constexpr QLatin1String TextKey = "text"_latin1;
constexpr QLatin1String VoiceAnswerKey = "voice_answer"_latin1;
constexpr QLatin1String TypeKey = "type"_latin1;
constexpr QLatin1String ContentKey = "content"_latin1;
constexpr QLatin1String SpokenType = "TTS"_latin1;

/// Overwrites @p text only when there is a string to write.
bool assignString(const QJsonValue &value, QString &text)
{
    if (!value.isString()) {
        return false;
    }
    text = value.toString();
    return true;
}

} // namespace

bool ContactUtils::analyzeIsShouldEndSession(const QString &semanticJson)
{
    return analyzeIsShouldEndSession(QJsonDocument::fromJson(semanticJson.toUtf8()));
}

bool ContactUtils::analyzeIsShouldEndSession(const QJsonDocument &semantic)
{
    if (semantic.isNull()) {
        qDebug() << "doc.isNull()";
        return true;
    }
    const QJsonValue intentValue = semantic.object().value(IntentKey);
    if (intentValue.isUndefined()) {
        qDebug() << "intent not exist";
        return true;
    }
    const QJsonObject intent = intentValue.toObject();
    if (intent.isEmpty()) {
        qDebug() << "intentObject.empty()";
        return true;
    }
    const QJsonValue shouldEnd = intent.value(ShouldEndSessionKey);
    if (shouldEnd.isUndefined()) {
        qDebug() << "shouldEndSession not exist";
        return true;
    }
    // What is no boolean counts as the end: the user gets an answer rather than silence.
    return shouldEnd.toBool(true);
}

void ContactUtils::getVoiceAnswerContext(const QString &semanticJson, QString &first, QString &second)
{
    const QJsonDocument document = QJsonDocument::fromJson(semanticJson.toUtf8());
    const QJsonObject intent = document.object().value(IntentKey).toObject();
    assignString(intent.value(AnswerKey).toObject().value(TextKey), first);
    const QJsonArray voiceAnswers = intent.value(VoiceAnswerKey).toArray();
    for (const QJsonValue value : voiceAnswers) {
        const QJsonObject voiceAnswer = value.toObject();
        if (voiceAnswer.value(TypeKey).toString() == SpokenType &&
            assignString(voiceAnswer.value(ContentKey), second)) {
            return;
        }
    }
}
