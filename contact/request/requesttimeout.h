// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// The configured time-out of a request in milliseconds; longer while the contacts application is not running
/// and has to be started first.
int requestTimeout(bool applicationIsRunning);
