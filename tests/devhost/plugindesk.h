// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "semantics.h"
#include "windowtest.h"

/// A shown window with the test plugin.
struct PluginDesk : Desk
{
    PluginDesk() : Desk(QStringLiteral(TEST_PLUGIN))
    {
        window.resize(1000, 700);
        window.show();
    }
};
