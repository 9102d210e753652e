// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/salvage.h"

#include <QSqlDatabase>

#include <memory>

class UseLock;

/**
 * The application's database file, migrated when it is opened. What is committed is on disk. Lives on the
 * thread that created it, together with everything that uses it. Throws DatabaseError.
 */
class Database
{
public:
    /**
     * Creates the file and its folder, accessible to their owner alone, when they are missing. A damaged file
     * is set aside, never deleted; what can be read of it is copied, and a notice tells the user. Only what
     * SQLite itself calls damaged counts: a lock is waited for, for a few seconds, and any other error is
     * thrown, as is damage in a file that another process works with.
     */
    explicit Database(const QString &fileName);
    ~Database();

    QSqlDatabase handle() const { return m_database; }
    /// The damaged file that opening has set aside; empty when there was none.
    QString setAsideFile() const { return m_setAsideFile; }
    Salvaged salvaged() const { return m_salvaged; }
    /// Grows with every row written.
    qint64 writtenRows() const;

    /// Records damage met while working: the next start checks the whole file, however large.
    void demandCheck() const;

    /// The user's own file, in the XDG data folder.
    static QString defaultFileName();

private:
    Q_DISABLE_COPY(Database)

    void openPatiently(const QString &fileName);
    void open(const QString &fileName);
    void check(const QString &fileName);
    void replace(const QString &fileName);
    void configure();
    void migrate();
    void close();

    QString m_connectionName;
    QSqlDatabase m_database;
    std::unique_ptr<UseLock> m_use;
    QString m_setAsideFile;
    Salvaged m_salvaged;
};

/// Makes everything between construction and commit() happen wholly or not at all. Throws DatabaseError.
class Transaction
{
public:
    explicit Transaction(const QSqlDatabase &database);
    /// Rolls back unless committed.
    ~Transaction();
    void commit();

private:
    Q_DISABLE_COPY(Transaction)

    QSqlDatabase m_database;
    bool m_open = true;
};
