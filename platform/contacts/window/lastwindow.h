// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <functional>

/// Closing the last window ends the application, unless @p isNeeded says then that it has work without one.
/// Needs a QGuiApplication, whose own rule it replaces; call it once.
void endWithLastWindowUnless(std::function<bool()> isNeeded);
