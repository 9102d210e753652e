// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Shared by the stand-ins for the real ability library, which each only define
// KelvaneAbilityManager::createContact().

#include <kelvane/kelvaneabilitymanager.h>

ContactAbility::~ContactAbility() = default;

KelvaneAbilityManager *KelvaneAbilityManager::instance()
{
    static KelvaneAbilityManager manager;
    return &manager;
}
