// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "semantic.h"

#include <QJsonDocument>
#include <QObject>

#include <memory>
#include <new>

/**
 * Reads the understanding service's whole answer, of which only the intents matter here. Meant to be local to
 * one request: take the intents out of semantic() and drop the parser.
 */
class SemanticParser : public QObject
{
    Q_OBJECT

public:
    explicit SemanticParser(QObject *parent = nullptr) : QObject(parent) {}

    /// @p json is outside input. False, with a log record, when it holds no readable intents.
    bool parseSemanticJson(const QString &json)
    {
        m_document = intentsOf(QJsonDocument::fromJson(json.toUtf8()));
        if (!m_document) {
            qCDebug(defaultLog) << "Parse semantic json error, invalid syntax: " << json;
            return false;
        }
        return m_semantic.parse(m_document->object());
    }

    /// Overload for an answer that is parsed already; reads the intents in place, without a document of their
    /// own.
    bool parseSemanticDocument(const QJsonDocument &answer)
    {
        m_document = std::make_unique<QJsonDocument>(answer);
        return m_semantic.parse(answer.object().value(QLatin1String(SemanticKey::Intent)));
    }

    [[nodiscard]] const CloudSemantic &semantic() const { return m_semantic; }

private:
    /// {"semantic": [...]} lifted out of the "intent" object; an empty document when the path is not there,
    /// none when there is no memory for one.
    static std::unique_ptr<QJsonDocument> intentsOf(const QJsonDocument &answer)
    {
        std::unique_ptr<QJsonDocument> document(new (std::nothrow) QJsonDocument);
        if (!document) {
            return nullptr;
        }
        const QJsonObject understanding =
            answer.object().value(QLatin1String(SemanticKey::Intent)).toObject();
        const auto semantic = understanding.constFind(QLatin1String(SemanticKey::Semantic));
        if (semantic != understanding.constEnd()) {
            // Built anew rather than written out and read again: the text is long and the outcome the same.
            document->setObject({{QLatin1String(SemanticKey::Semantic), semantic.value().toArray()}});
        }
        return document;
    }

    CloudSemantic m_semantic;
    std::unique_ptr<QJsonDocument> m_document; ///< what was last parsed; null before
};
