// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "exitstatus.h"
#include "logrecorder.h"
#include "options.h"
#include "pluginhost.h"

namespace devhost {

/// Runs --batch or --converse and returns the exit status.
ExitStatus runTextMode(const Options &options, PluginHost &host, LogRecorder &logs);

/// Reads the names in @p file, one per line; none for an empty file name. Returns false when it cannot be
/// read.
bool readContactNames(const QString &file, QStringList &names);

} // namespace devhost
