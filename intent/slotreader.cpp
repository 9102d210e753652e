// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "slotreader.h"

#include "semantic/semantic.h"

#include <algorithm>

namespace {

bool isCalled(const CloudSlot &slot, const char *slotName)
{
    return slot.map.value(QStringLiteral("name")).toString() == QLatin1String(slotName);
}

} // namespace

const CloudSlot *SlotReader::first(const CloudIntent &intent, const char *slotName)
{
    const auto slot =
        std::find_if(intent.slotList.cbegin(), intent.slotList.cend(),
                     [slotName](const CloudSlot &candidate) { return isCalled(candidate, slotName); });
    return slot == intent.slotList.cend() ? nullptr : &*slot;
}

QString SlotReader::text(const CloudSlot &slot)
{
    const auto normValue = slot.map.constFind(QStringLiteral("normValue"));
    return normValue == slot.map.constEnd() ? spokenValue(slot) : normValue->toString();
}

QString SlotReader::spokenValue(const CloudSlot &slot)
{
    return slot.map.value(QStringLiteral("value")).toString();
}

QString SlotReader::firstText(const CloudIntent &intent, const char *slotName, const QString &fallback)
{
    const CloudSlot *slot = first(intent, slotName);
    return slot == nullptr ? fallback : text(*slot);
}

QVector<QString> SlotReader::allTexts(const CloudIntent &intent, const char *slotName)
{
    QVector<QString> texts;
    for (const CloudSlot &slot : intent.slotList) {
        if (isCalled(slot, slotName)) {
            texts.append(text(slot));
        }
    }
    return texts;
}
