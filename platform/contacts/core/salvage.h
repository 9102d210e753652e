// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSqlDatabase>

/// The rows that could be read of a damaged database.
struct Salvaged
{
    int people = 0;
    int conferences = 0;
    int rows = 0; ///< of all tables
};

/// Copies what can be read of @p damagedFile, row by row, into @p fresh, a database of the current version
/// without content; also what lies between two damaged places. Leaves out rows whose person or conference is
/// lost. Only reads the damaged file. Call within a transaction and roll it back when this throws:
/// DatabaseError, when @p fresh fails.
Salvaged salvage(const QString &damagedFile, const QSqlDatabase &fresh);
