// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QJsonDocument;
QT_END_NAMESPACE

/// Reads the keys with which the understanding service itself answers:
/// {"intent": {"shouldEndSession": false, "answer": {"text": "几点开始？"},
///             "voice_answer": [{"type": "TTS", "content": "请问几点开始？"}]}}
namespace SemanticReader {

/// Whether the turn ends the dialogue; also true if @p semantic does not say.
bool shouldEndSession(const QJsonDocument &semantic);

/// Writes the texts to show and to speak; what is missing leaves them alone.
void readVoiceAnswer(const QJsonDocument &semantic, QString &shown, QString &spoken);

} // namespace SemanticReader
