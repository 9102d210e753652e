// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/**
 * Whether exactly one process of the contacts application is in the process table. A file of its own, so that
 * a program without a process table can link another answer in its place.
 */
bool contactsApplicationIsRunning();
