// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSqlError>
#include <QString>

#include <stdexcept>

/// A statement or the opening failed. Thrown by the repositories, caught at the application's doors; no
/// answer is given and no half of a request stays.
class DatabaseError : public std::runtime_error
{
public:
    explicit DatabaseError(const QString &message) : std::runtime_error(message.toStdString()) {}
    /// With the reason and the code that SQLite gave.
    DatabaseError(const QSqlError &error, const QString &where);

    /// Whether the file is damaged, which nothing else than SQLITE_CORRUPT and SQLITE_NOTADB says: no room,
    /// no permission and a lock look alike from afar.
    bool isDamage() const;
    /// Whether somebody else has the file locked.
    bool isBusy() const;
    /// Whether a rule of the tables has refused a row.
    bool isConstraint() const;

private:
    int m_code = 0;
};
