// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLatin1String>

/// The desk's names; they also name its settings file.
namespace DeskNames {
const QLatin1String Organization("kelvane");
const QLatin1String Application("speakmate-devhost");
} // namespace DeskNames
