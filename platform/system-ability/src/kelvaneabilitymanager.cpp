// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kelvane/kelvaneabilitymanager.h>

#include "buscontactability.h"

KelvaneAbilityManager *KelvaneAbilityManager::instance()
{
    static KelvaneAbilityManager manager;
    return &manager;
}

ContactAbility *KelvaneAbilityManager::createContact()
{
    return new BusContactAbility;
}
