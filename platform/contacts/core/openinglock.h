// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/**
 * Held while a database is checked and, when damaged, set aside and replaced: of two processes that start at
 * once, the second finds what the first has made, rather than treating it as damaged. A file beside the
 * database, which stays. The lock ends with the process at the latest.
 */
class OpeningLock
{
public:
    /// Waits for another holder, within limits. The database's folder must exist. Throws DatabaseError.
    explicit OpeningLock(const QString &databaseFile);
    ~OpeningLock();

private:
    Q_DISABLE_COPY(OpeningLock)

    int m_descriptor;
};

/**
 * Held in the same file while a database is open: a damaged one is not replaced while a process works with
 * it. Any number may be held at once.
 */
class UseLock
{
public:
    /// Throws DatabaseError.
    explicit UseLock(const QString &databaseFile);
    ~UseLock();

    /// Whether any process holds one. Throws DatabaseError.
    static bool isHeld(const QString &databaseFile);

private:
    Q_DISABLE_COPY(UseLock)

    int m_descriptor;
};
