// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/**
 * What stands around the measured code: an ability that answers at once and a process check that costs
 * nothing. The linker's --wrap puts them in the place of the real ones, which stay within reach.
 */
namespace Stubs {

/// Requests are answered with @p answer from now on, without leaving the process.
void answerAtOnce(const QString &answer);
/// Requests go to the application on the session bus from now on.
void askTheApplication();
/// The process check as the plugin makes it.
bool realProcessCheck();

} // namespace Stubs
