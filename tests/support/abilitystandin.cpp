// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What stand-ins for the real ability library have in common: they only make abilities of their own in
// KelvaneAbilityManager::createContact().

#include <kelvane/kelvaneabilitymanager.h>

ContactAbility::~ContactAbility() = default;

KelvaneAbilityManager *KelvaneAbilityManager::instance()
{
    static KelvaneAbilityManager manager;
    return &manager;
}
