// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "defaultlog.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVector>

/**
 * @file
 * One utterance as the understanding service read it: intents with named slots. The records are plain values;
 * parse() takes untrusted JSON, never throws, and on failure logs why and returns false.
 *
 * @code{.json}
 * {"semantic": [{"intent": "CREATE_CONFERENCE",
 *                "slots": [{"name": "name", "value": "小李", "normValue": "李雷"}]}]}
 * @endcode
 */
namespace SemanticKey {
// Plain characters, because log records quote them too.
constexpr const char *Semantic = "semantic";
constexpr const char *Intent = "intent";
constexpr const char *Slots = "slots";
constexpr const char *Name = "name";
} // namespace SemanticKey

/// One slot: every member of its JSON object, unchanged; "name" is always there and a string.
class CloudSlot
{
public:
    bool parse(const QJsonValue &value)
    {
        const QJsonObject object = value.toObject();
        if (!object.value(QLatin1String(SemanticKey::Name)).isString()) {
            qCCritical(defaultLog) << "Every slot must contain a name";
            return false;
        }
        map = object.toVariantMap();
        return true;
    }

    QMap<QString, QVariant> map;
};

/// One intent with its slots, in the order in which they came.
class CloudIntent
{
public:
    bool parse(const QJsonValue &value)
    {
        const QJsonObject object = value.toObject();
        const QJsonValue intent = object.value(QLatin1String(SemanticKey::Intent));
        const QJsonValue slotValues = object.value(QLatin1String(SemanticKey::Slots));
        if (!intent.isString() || !slotValues.isArray()) {
            qCDebug(defaultLog) << "Parse intent failed, json must contain: " << SemanticKey::Intent << ", "
                                << SemanticKey::Slots;
            return false;
        }
        name = intent.toString();
        const QJsonArray array = slotValues.toArray();
        slotList.reserve(slotList.size() + array.size());
        for (const QJsonValue &slotValue : array) {
            if (!slotValue.isObject()) {
                qCCritical(defaultLog)
                    << "Parse slot failed, slot is not a object"; // hosts search for this wording
                qCDebug(defaultLog) << "Parse slot failed, please check slot.";
                return false;
            }
            CloudSlot slot;
            if (!slot.parse(slotValue)) {
                qCDebug(defaultLog) << "Parse slot failed, please check slot.";
                return false;
            }
            slotList.append(slot);
        }
        return true;
    }

    QString name;
    QVector<CloudSlot> slotList; ///< not "slots", which is a macro where Qt's keywords are on
};

/// All intents of one utterance, in the order in which they came.
class CloudSemantic
{
public:
    /// Intents before a broken one stay.
    bool parse(const QJsonValue &root)
    {
        const QJsonObject object = root.toObject();
        const auto semantic = object.constFind(QLatin1String(SemanticKey::Semantic));
        if (semantic == object.constEnd()) {
            qCDebug(defaultLog) << "Can not parse semantic, root name must be: " << SemanticKey::Semantic;
            return false;
        }
        const QJsonArray array = semantic.value().toArray();
        intents.reserve(intents.size() + array.size());
        for (const QJsonValue &value : array) {
            CloudIntent intent;
            if (!intent.parse(value)) {
                qCDebug(defaultLog) << "Parse intent failed, please check intent.";
                return false;
            }
            intents.append(intent);
        }
        return true;
    }

    QVector<CloudIntent> intents;
};
