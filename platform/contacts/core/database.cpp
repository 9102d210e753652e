// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/database.h"

#include "core/databaseerror.h"
#include "core/migrations.h"
#include "core/statement.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QStandardPaths>
#include <QUuid>

namespace {

void runPragma(const QSqlDatabase &database, const QString &sql, const QString &expected)
{
    Statement pragma(database, sql);
    pragma.run();
    if (!expected.isEmpty() && (!pragma.next() || pragma.text(0) != expected)) {
        throw DatabaseError(sql + QStringLiteral(" had no effect"));
    }
}

/// Keeps a damaged file for whoever wants to rescue it, with its journal.
void setAside(const QString &fileName)
{
    const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddThhmmsszzz"));
    for (const QLatin1String suffix : {QLatin1String(""), QLatin1String("-wal"), QLatin1String("-shm")}) {
        QFile::rename(fileName + suffix, fileName + QStringLiteral(".damaged-") + stamp + suffix);
    }
}

} // namespace

Database::Database(const QString &fileName) : m_connectionName(QUuid::createUuid().toString())
{
    QDir().mkpath(QFileInfo(fileName).absolutePath());
    try {
        open(fileName);
        if (!isReadable()) {
            qCritical() << "The database is damaged and is set aside:" << fileName;
            close();
            setAside(fileName);
            open(fileName);
        }
        configure();
        migrate();
    } catch (...) {
        close();
        throw;
    }
}

Database::~Database()
{
    close();
}

QString Database::defaultFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/kelvane-contacts/contacts.db");
}

qint64 Database::writtenRows() const
{
    Statement query(m_database, QStringLiteral("SELECT total_changes()"));
    query.run().next();
    return query.number(0);
}

void Database::open(const QString &fileName)
{
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    m_database.setDatabaseName(fileName);
    if (!m_database.open()) {
        throw DatabaseError(m_database.lastError().text() + QStringLiteral(" for ") + fileName);
    }
}

bool Database::isReadable() const
{
    // The first look into the file; SQLite calls anything else than its own format "not a database".
    QSqlQuery query(m_database);
    return query.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"));
}

void Database::configure()
{
    runPragma(m_database, QStringLiteral("PRAGMA journal_mode = WAL"), QStringLiteral("wal"));
    runPragma(m_database, QStringLiteral("PRAGMA synchronous = FULL"), {});
    runPragma(m_database, QStringLiteral("PRAGMA foreign_keys = ON"), {});
    runPragma(m_database, QStringLiteral("PRAGMA synchronous"), QStringLiteral("2"));
    runPragma(m_database, QStringLiteral("PRAGMA foreign_keys"), QStringLiteral("1"));
}

void Database::migrate()
{
    Transaction transaction(m_database);
    Statement version(m_database, QStringLiteral("PRAGMA user_version"));
    version.run().next();
    const int seen = version.smallNumber(0);
    const QVector<QStringList> &steps = databaseMigrations();
    if (seen < 0 || seen > steps.size()) {
        throw DatabaseError(QStringLiteral("the database was written by a newer version of the application"));
    }
    for (int step = seen; step < steps.size(); ++step) {
        for (const QString &sql : steps.at(step)) {
            Statement(m_database, sql).run();
        }
    }
    // A pragma takes no bound value; the number is ours.
    if (seen != steps.size()) {
        Statement(m_database, QStringLiteral("PRAGMA user_version = %1").arg(steps.size())).run();
    }
    transaction.commit();
}

void Database::close()
{
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
}

Transaction::Transaction(const QSqlDatabase &database) : m_database(database)
{
    // Immediate: a transaction that reads first and writes later cannot be refused half way.
    Statement(m_database, QStringLiteral("BEGIN IMMEDIATE")).run();
}

Transaction::~Transaction()
{
    if (m_open) {
        QSqlQuery(m_database).exec(QStringLiteral("ROLLBACK"));
    }
}

void Transaction::commit()
{
    Statement(m_database, QStringLiteral("COMMIT")).run();
    m_open = false;
}
