// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QPalette>

/// The toolkit's colours. The disabled group has the same colours, fainter.
namespace Palettes {
QPalette light();
QPalette dark();
} // namespace Palettes
