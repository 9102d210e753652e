// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

namespace devhost {

/// Builds and paints one of everything that cards are made of, out of sight, so that the first card of the
/// process does not pay for fonts and icons. Some tens of milliseconds; for when nothing else is to be done.
void warmUp();

} // namespace devhost
