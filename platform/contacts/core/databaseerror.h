// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSqlError>
#include <QString>

#include <stdexcept>

/// A statement, or opening the file, failed. Thrown by the repositories and caught where requests enter: such
/// a request gets no answer and leaves nothing half done.
class DatabaseError : public std::runtime_error
{
public:
    explicit DatabaseError(const QString &message) : std::runtime_error(message.toStdString()) {}
    /// With the reason and SQLite's code.
    DatabaseError(const QSqlError &error, const QString &where);

    /// Whether the file is damaged: SQLITE_CORRUPT and SQLITE_NOTADB only. A full disk, missing permissions
    /// and a lock are something else.
    bool isDamage() const;
    /// Whether another process holds a lock on the file.
    bool isBusy() const;
    /// Whether a constraint of the tables has rejected a row.
    bool isConstraint() const;

private:
    int m_code = 0;
};
