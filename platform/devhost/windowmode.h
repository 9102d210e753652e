// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "exitstatus.h"
#include "logrecorder.h"
#include "options.h"
#include "pluginhost.h"

namespace devhost {

/// Opens the window and runs until it is closed or its script has ended. Without a plugin the window says
/// why.
int runWindow(const Options &options, PluginHost &host, LogRecorder &logs);

} // namespace devhost
