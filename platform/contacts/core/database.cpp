// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/database.h"

#include "core/databaseerror.h"
#include "core/migrations.h"
#include "core/openinglock.h"
#include "core/privatefiles.h"
#include "core/replacement.h"
#include "core/statement.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlError>
#include <QStandardPaths>
#include <QThread>
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

/// How long to wait for another process's lock on the file.
constexpr int PatienceMsecs = 5000;
/// A check reads the whole file. A file larger than this, with a quarter of a million conferences, would
/// delay the start too much; its damage is found when it is met.
constexpr qint64 LargestCheckedFile = 256 * 1024 * 1024;

/// A file beside the database that records damage met while working.
QString checkDemand(const QString &fileName)
{
    return fileName + QStringLiteral(".check");
}

} // namespace

Database::Database(const QString &fileName) : m_connectionName(QUuid::createUuid().toString())
{
    makePrivate(fileName);
    const OpeningLock lock(fileName);
    m_setAsideFile = Replacement::resume(fileName);
    if (!m_setAsideFile.isEmpty()) {
        qWarning() << "The database" << fileName
                   << "was damaged, and is now replaced as a former start meant to";
    }
    try {
        openPatiently(fileName);
    } catch (const DatabaseError &error) {
        close();
        if (!error.isDamage()) {
            throw;
        }
        if (UseLock::isHeld(fileName)) {
            throw DatabaseError(
                QStringLiteral("%1 is damaged, and another process works with it; it is left as it is: %2")
                    .arg(fileName, QString::fromUtf8(error.what())));
        }
        qCritical() << "The database" << fileName << "is damaged and is replaced:" << error.what();
        replace(fileName);
    }
    try {
        m_use = std::make_unique<UseLock>(fileName);
    } catch (...) {
        close();
        throw;
    }
}

void Database::replace(const QString &fileName)
{
    const Replacement replacement(fileName);
    makePrivate(replacement.buildingFile());
    try {
        openPatiently(replacement.buildingFile());
        Transaction transaction(m_database);
        m_salvaged = salvage(fileName, m_database);
        replacement.note(m_database, m_salvaged);
        transaction.commit();
    } catch (...) {
        close();
        throw;
    }
    close();
    replacement.finish();
    m_setAsideFile = replacement.setAsideFile();
    openPatiently(fileName);
    qCritical() << "Of the damaged database" << m_setAsideFile << "was kept:" << m_salvaged.people
                << "people," << m_salvaged.conferences << "conferences";
}

void Database::openPatiently(const QString &fileName)
{
    QElapsedTimer waiting;
    waiting.start();
    for (;;) {
        try {
            open(fileName);
            check(fileName);
            configure();
            migrate();
            return;
        } catch (const DatabaseError &error) {
            close();
            // SQLite waits by itself, except where it sees a deadlock coming.
            if (!error.isBusy() || waiting.elapsed() >= PatienceMsecs) {
                throw;
            }
        }
        QThread::msleep(50);
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

void Database::demandCheck() const
{
    QFile demand(checkDemand(m_database.databaseName()));
    if (!demand.open(QIODevice::WriteOnly)) {
        qWarning() << "The database's next start will not check all of it:" << demand.errorString();
    }
}

void Database::open(const QString &fileName)
{
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    m_database.setDatabaseName(fileName);
    m_database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(PatienceMsecs));
    if (!m_database.open()) {
        throw DatabaseError(m_database.lastError(), QStringLiteral("for ") + fileName);
    }
}

void Database::check(const QString &fileName)
{
    // First access to the file; SQLite calls anything but its own format "not a database".
    Statement(m_database, QStringLiteral("SELECT count(*) FROM sqlite_master")).run().next();
    const QString demand = checkDemand(fileName);
    if (QFileInfo(fileName).size() > LargestCheckedFile && !QFile::exists(demand)) {
        return;
    }
    Statement check(m_database, QStringLiteral("PRAGMA quick_check(1)"));
    check.run();
    const QString result = check.next() ? check.text(0) : QString();
    if (result == QLatin1String("ok")) {
        QFile::remove(demand);
        return;
    }
    // A page that could not be read for other reasons than damage is reported in a row, too.
    static const QRegularExpression codeInText(QStringLiteral("error code=(\\d+)"));
    const QRegularExpressionMatch match = codeInText.match(result);
    const QString code = match.hasMatch() ? match.captured(1) : QStringLiteral("11");
    throw DatabaseError(QSqlError(QString(), result, QSqlError::StatementError, code), fileName);
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
    // Immediate: a transaction that reads first cannot be refused halfway when it starts to write.
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
