// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The understanding service's answers and the time slots in them.

#include "contactutils.h"
#include "jsonsource.h"
#include "semantic/semanticparser.h"

#include <QJsonDocument>

namespace {

const JsonSource::Words Keys = {
    "intent", "intent",  "semantic",       "semantic",         "slots",  "slots", "name",
    "name",   "value",   "normValue",      "shouldEndSession", "answer", "text",  "voice_answer",
    "type",   "content", "suggestDatetime"};
const JsonSource::Words SlotWords = {"CREATE_CONFERENCE",
                                     "ADD_BUDDY",
                                     "name",
                                     "datetime",
                                     "TTS",
                                     "李雷",
                                     "\\ud800",
                                     "2026-03-07",
                                     "2026-03-07T10:20:00",
                                     "2026-02-29",
                                     "9999-12-31T23:59:59",
                                     "T",
                                     "{\\\"suggestDatetime\\\": \\\"2026-03-08\\\"}"};

void readIntents(const QString &text)
{
    SemanticParser parser;
    if (!parser.parseSemanticJson(text)) {
        return;
    }
    for (const CloudIntent &intent : parser.semantic().intents) {
        for (const CloudSlot &slot : intent.slotList) {
            require(slot.map.value(QStringLiteral("name")).type() == QVariant::String);
        }
    }
}

void readTime(const QString &text)
{
    bool isSchedule = false;
    qint64 start = -1;
    const bool isAccepted = ContactUtils::scheduleTimeMsecsInit(text, isSchedule, start);
    require(isSchedule == (isAccepted && !text.isEmpty()));
    require(!isSchedule || start > 0);

    qint64 queryStart = 0;
    const QString range = ContactUtils::queryParamInit(text, queryStart);
    require(range.isEmpty() || QJsonDocument::fromJson(range.toUtf8()).isObject());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    silenceTheLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    JsonSource source(data, size, Keys, SlotWords);
    const QString text = QString::fromUtf8(source.text());
    readIntents(text);
    readTime(text);
    ContactUtils::analyzeIsShouldEndSession(text);
    QString shown;
    QString spoken;
    ContactUtils::getVoiceAnswerContext(text, shown, spoken);
    return 0;
}
