// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kelvane/kelvaneabilitymanager.h>

ContactAbility::~ContactAbility() = default;

KelvaneAbilityManager *KelvaneAbilityManager::instance()
{
    static KelvaneAbilityManager manager;
    return &manager;
}

ContactAbility *KelvaneAbilityManager::createContact()
{
    return nullptr;
}
