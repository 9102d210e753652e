// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/**
 * Whether exactly one process of the contacts application is in the process table. Has its own file so that a
 * program without a process table can link a replacement.
 */
bool contactsApplicationIsRunning();
