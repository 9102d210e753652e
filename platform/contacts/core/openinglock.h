// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/**
 * Held while a database is looked at and, when it is damaged, set aside and replaced: of two processes that
 * start at once the second one finds what the first one has made, and does not take it for the damaged one.
 * A file beside the database, which stays. The lock ends with the process at the latest.
 */
class OpeningLock
{
public:
    /// Waits for the other one, but not for ever. The database's folder exists. Throws DatabaseError.
    explicit OpeningLock(const QString &databaseFile);
    ~OpeningLock();

private:
    Q_DISABLE_COPY(OpeningLock)

    int m_descriptor;
};

/**
 * Held, in the same file, as long as a database is open: a damaged one is not taken away from a process that
 * works with it. Any number of them may be held at once.
 */
class UseLock
{
public:
    /// Throws DatabaseError.
    explicit UseLock(const QString &databaseFile);
    ~UseLock();

    /// Whether anybody holds one. Throws DatabaseError.
    static bool isHeld(const QString &databaseFile);

private:
    Q_DISABLE_COPY(UseLock)

    int m_descriptor;
};
