// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSqlDatabase>

/**
 * The application's database file, brought up to date when it is opened. What is committed is on disk. Lives
 * on the thread that made it, and everything that uses it does so there. Throws DatabaseError.
 */
class Database
{
public:
    /// Creates the file and its folder when they are missing. A file that is no database is set aside, never
    /// deleted.
    explicit Database(const QString &fileName);
    ~Database();

    QSqlDatabase handle() const { return m_database; }
    /// Grows with every row that is written.
    qint64 writtenRows() const;

    /// The user's own file, below the XDG data folder.
    static QString defaultFileName();

private:
    Q_DISABLE_COPY(Database)

    void open(const QString &fileName);
    bool isReadable() const;
    void configure();
    void migrate();
    void close();

    QString m_connectionName;
    QSqlDatabase m_database;
};

/// Everything between construction and commit() happens wholly or not at all. Throws DatabaseError.
class Transaction
{
public:
    explicit Transaction(const QSqlDatabase &database);
    /// Rolls back what was not committed.
    ~Transaction();
    void commit();

private:
    Q_DISABLE_COPY(Transaction)

    QSqlDatabase m_database;
    bool m_open = true;
};
