// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// Makes the folder of @p databaseFile, and keeps everybody but its owner out of it (0700) and of the
/// database files in it (0600), also of those that are there already: they hold passcodes. The database file
/// exists afterwards, perhaps empty, so that its journal files get the same permissions. What cannot be
/// changed is logged. Throws DatabaseError when there can be no such file.
void makePrivate(const QString &databaseFile);
