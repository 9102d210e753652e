// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSqlDatabase>

/// What could be read of a damaged database.
struct Salvaged
{
    int people = 0;
    int conferences = 0;
    int rows = 0; ///< of all tables
};

/// Copies what can be read of @p damagedFile into @p fresh, a database of the present version without
/// content, row by row, also what lies between two damaged places. Rows whose person or conference is lost
/// are left out. The damaged file is only read. Within a transaction of the caller's, which has to be undone
/// when it throws: DatabaseError, when @p fresh fails.
Salvaged salvage(const QString &damagedFile, const QSqlDatabase &fresh);
