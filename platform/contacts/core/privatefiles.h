// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// Creates the folder of @p databaseFile and makes it (0700) and the database files in it (0600) accessible
/// to their owner alone, existing ones included: they hold passcodes. Also creates the database file itself
/// when missing, so that its journal files get the same permissions. Logs what cannot be changed. Throws
/// DatabaseError when the file cannot be created.
void makePrivate(const QString &databaseFile);
