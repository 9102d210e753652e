// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/outcome.h"

#include <algorithm>
#include <iterator>

namespace understanding {

bool Outcome::hasSlot(const char *name) const
{
    return std::any_of(slotList.cbegin(), slotList.cend(),
                       [name](const Slot &slot) { return slot.name == QLatin1String(name); });
}

QVector<Slot> Outcome::slotsNamed(const char *name) const
{
    QVector<Slot> named;
    std::copy_if(slotList.cbegin(), slotList.cend(), std::back_inserter(named),
                 [name](const Slot &slot) { return slot.name == QLatin1String(name); });
    return named;
}

void Outcome::addSlot(const char *name, const QString &value, const QString &normValue)
{
    slotList.append({QLatin1String(name), value, normValue});
}

void Outcome::removeSlots(const char *name, const QString &value)
{
    const auto isMeant = [&](const Slot &slot) {
        return slot.name == QLatin1String(name) && (value.isEmpty() || slot.value == value);
    };
    slotList.erase(std::remove_if(slotList.begin(), slotList.end(), isMeant), slotList.end());
}

void Outcome::addSlotsOf(const Outcome &other)
{
    for (const Slot &slot : other.slotList) {
        const bool known = std::any_of(slotList.cbegin(), slotList.cend(), [&](const Slot &one) {
            return one.name == slot.name && one.normValue == slot.normValue;
        });
        if (!known) {
            slotList.append(slot);
        }
    }
}

} // namespace understanding
