// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "exitstatus.h"
#include "logrecorder.h"
#include "options.h"
#include "pluginhost.h"

namespace devhost {

/// Serves the desktop's launchers until the session bus is gone.
ExitStatus runService(const Options &options, PluginHost &host, LogRecorder &logs);

} // namespace devhost
