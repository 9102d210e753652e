// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "dynamicregisterintentfactory.h"

/// Creates this plugin's handlers. A new intent is one more row in the constructor.
class ContactIntentFactory : public DynamicRegisterIntentFactory
{
    Q_OBJECT

public:
    /// Created on the first call, from any thread; lives until the process ends.
    static ContactIntentFactory *instance();

private:
    ContactIntentFactory();
};
