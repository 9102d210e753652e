// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <kelvane/contactability.h>

/// Creates the abilities of the desktop's applications. One per process; thread-safe.
class KELVANE_ABILITY_EXPORT KelvaneAbilityManager
{
public:
    static KelvaneAbilityManager *instance();
    /// Creates an ability, owned by the caller.
    ContactAbility *createContact();
};
