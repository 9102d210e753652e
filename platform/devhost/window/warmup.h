// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

namespace devhost {

/// Builds and paints one of each part of a card out of sight, so that the first card of the process does not
/// pay for fonts and icons. Takes some tens of milliseconds; call it when idle.
void warmUp();

} // namespace devhost
