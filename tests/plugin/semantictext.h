// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// Answers of the understanding service, as input for the tests.
namespace SemanticText {

/// An answer with one intent, with slots as in "[{'name':'id','value':'1'}]"; single quotes become double.
inline QString of(const char *intentName, const char *slotArray = "[]", const char *more = "")
{
    return QStringLiteral(
               "{\"intent\":{\"semantic\":[{\"intent\":\"%1\",\"slots\":%2}],\"shouldEndSession\":true%3}}")
        .arg(QString::fromUtf8(intentName),
             QString::fromUtf8(slotArray).replace(QLatin1Char('\''), QLatin1Char('"')),
             QString::fromUtf8(more).replace(QLatin1Char('\''), QLatin1Char('"')));
}

/// An answer that keeps the dialogue open, showing @p shown and saying @p spoken.
inline QString openDialogue(const char *shown, const char *spoken)
{
    return QStringLiteral(
               "{\"intent\":{\"semantic\":[],\"shouldEndSession\":false,\"answer\":{\"text\":\"%1\"},"
               "\"voice_answer\":[{\"type\":\"TTS\",\"content\":\"%2\"}]}}")
        .arg(QString::fromUtf8(shown), QString::fromUtf8(spoken));
}

inline QString withoutIntents()
{
    return QStringLiteral("{\"intent\":{\"semantic\":[],\"shouldEndSession\":true}}");
}

} // namespace SemanticText
