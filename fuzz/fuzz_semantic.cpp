// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Fuzzes the reading of the understanding service's answers.

#include "contactutils.h"
#include "semantic/semanticparser.h"
#include "templatetext.h"

#include <QJsonDocument>

#include <new>

namespace {

/// Whether allocations with std::nothrow succeed.
bool hasMemory = true;

constexpr const char *Command =
    "{'intent':{'shouldEndSession':true,'semantic':[{'intent':'CREATE_CONFERENCE|ADD_BUDDY|QUERY_CONFERENCE|'"
    ","
    "'slots':[{'name':'name|datetime|password|','value':'李雷|{\\'suggestDatetime\\':\\'2026-03-08\\'}',"
    "'normValue':'李雷|'}]}]}}";
constexpr const char *Question = "{'intent':{'shouldEndSession':false,'answer':{'text':'几点开始？|'},"
                                 "'voice_answer':[{'type':'TTS|other','content':'请问几点开始？|'}]}}";

void readIntents(const QString &text)
{
    SemanticParser parser;
    const bool isRead = parser.parseSemanticJson(text);
    SemanticParser other;
    require(other.parseSemanticDocument(QJsonDocument::fromJson(text.toUtf8())) == isRead);
    require(other.semantic().intents.size() == parser.semantic().intents.size());
    // Intents before a broken one must be complete, too.
    for (const CloudIntent &intent : parser.semantic().intents) {
        for (const CloudSlot &slot : intent.slotList) {
            require(slot.map.value(QStringLiteral("name")).type() == QVariant::String);
        }
    }
}

void readWithoutMemory(const QString &text)
{
    SemanticParser parser;
    hasMemory = false;
    const bool isRead = parser.parseSemanticJson(text);
    hasMemory = true;
    require(!isRead && parser.semantic().intents.isEmpty());
}

} // namespace

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return hasMemory ? ::operator new(size) : nullptr;
}

void prepareToFuzz(int & /*argc*/, char ** /*argv*/) {}

void fuzz(FuzzedDataProvider &bytes)
{
    const char *const chosen = pick(bytes, {Command, Question});
    const QString text = QString::fromUtf8(TemplateText(bytes).after(chosen));
    readIntents(text);
    constexpr int oneIn = 20;
    if (bytes.ConsumeIntegralInRange(0, oneIn) == oneIn) {
        readWithoutMemory(text);
    }
    require(ContactUtils::analyzeIsShouldEndSession(text) ==
            ContactUtils::analyzeIsShouldEndSession(QJsonDocument::fromJson(text.toUtf8())));
    QString shown = QStringLiteral("before");
    QString spoken = QStringLiteral("before");
    ContactUtils::getVoiceAnswerContext(text, shown, spoken);
}
