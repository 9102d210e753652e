// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "dynamicregisterintentfactory.h"

/// The handlers of this plugin: a new intent is one more row in the constructor.
class ContactIntentFactory : public DynamicRegisterIntentFactory
{
    Q_OBJECT

public:
    /// Made on the first call, on any thread; lives until the process ends.
    static ContactIntentFactory *instance();

private:
    ContactIntentFactory();
};
