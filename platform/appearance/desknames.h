// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLatin1String>

/// The desk's names, which also name its settings file.
namespace DeskNames {
constexpr QLatin1String Organization("kelvane");
constexpr QLatin1String Application("speakmate-devhost");
} // namespace DeskNames
