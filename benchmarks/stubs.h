// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/**
 * Stubs around the measured code: an ability that answers at once and a process check that costs nothing. The
 * linker's --wrap substitutes them for the real ones, which stay available.
 */
namespace Stubs {

/// Answers requests with @p answer from now on, without leaving the process.
void answerAtOnce(const QString &answer);
/// Sends requests to the application on the session bus from now on.
void askTheApplication();
/// Runs the plugin's real process check.
bool realProcessCheck();

} // namespace Stubs
