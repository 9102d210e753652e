// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "exitstatus.h"
#include "logrecorder.h"
#include "options.h"
#include "pluginhost.h"

namespace devhost {

/// Runs --batch or --converse to its end.
ExitStatus runTextMode(const Options &options, PluginHost &host, LogRecorder &logs);

/// The names in @p file, one per line; none for an empty name. False when the file cannot be read.
bool readContactNames(const QString &file, QStringList &names);

} // namespace devhost
