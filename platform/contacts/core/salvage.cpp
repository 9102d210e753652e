// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/salvage.h"

#include "core/database.h"
#include "core/statement.h"

#include <QSqlQuery>
#include <QStringList>
#include <QUuid>
#include <QVariant>

namespace {

/// Those that others refer to come first.
struct SalvagedTable
{
    const char *name;
    const char *order; ///< the key, in both directions
};
constexpr SalvagedTable Tables[] = {
    {"person", "user_id"},
    {"contact", "owner_id %1, person_id"},
    {"friend_request", "owner_id %1, person_id"},
    {"conference", "id"},
    {"participant", "conference_id %1, user_id"},
    {"creation", "rowid"},
    {"performed_request", "id"},
    {"session", "id"},
};

QStringList columnsOf(const QSqlDatabase &database, const QString &table)
{
    QStringList columns;
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (query.exec(QStringLiteral("PRAGMA table_info(%1)").arg(table))) {
        while (query.next()) {
            columns.append(query.value(1).toString());
        }
    }
    return columns;
}

/// Copies rows until the damage; answers how many are new.
int copyRows(const QSqlDatabase &damaged, const QSqlDatabase &fresh, const QString &table,
             const QStringList &columns, const QString &order)
{
    QSqlQuery read(damaged);
    read.setForwardOnly(true);
    const QString names = columns.join(QStringLiteral(", "));
    if (!read.exec(QStringLiteral("SELECT %1 FROM %2 ORDER BY %3").arg(names, table, order))) {
        return 0;
    }
    QSqlQuery write(fresh);
    // The session's row is there already; a row that was copied from the other end is not copied again.
    const QString verb =
        table == QLatin1String("session") ? QStringLiteral("REPLACE") : QStringLiteral("IGNORE");
    const QStringList places = QVector<QString>(columns.size(), QStringLiteral("?")).toList();
    if (!write.prepare(QStringLiteral("INSERT OR %1 INTO %2 (%3) VALUES (%4)")
                           .arg(verb, table, names, places.join(QStringLiteral(", "))))) {
        return 0;
    }
    int copied = 0;
    while (read.next()) {
        for (int column = 0; column < columns.size(); ++column) {
            write.bindValue(column, read.value(column));
        }
        // Refused when it refers to something that is lost, or makes no sense.
        if (write.exec()) {
            copied += write.numRowsAffected();
        }
    }
    return copied;
}

} // namespace

Salvaged salvage(const QString &damagedFile, const QSqlDatabase &fresh)
{
    const QString connection = QUuid::createUuid().toString();
    Salvaged salvaged;
    {
        QSqlDatabase damaged = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        damaged.setDatabaseName(damagedFile);
        damaged.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        if (damaged.open()) {
            Transaction transaction(fresh);
            for (const SalvagedTable &table : Tables) {
                const QString name = QLatin1String(table.name);
                QStringList columns;
                const QStringList known = columnsOf(fresh, name);
                const QStringList present = columnsOf(damaged, name);
                for (const QString &column : present) {
                    if (known.contains(column)) {
                        columns.append(column);
                    }
                }
                if (columns.isEmpty()) {
                    continue;
                }
                // Where there is no other key, it tells that a row has been copied already.
                if (QLatin1String(table.order) == QLatin1String("rowid")) {
                    columns.prepend(QStringLiteral("rowid"));
                }
                int copied = 0;
                for (const QLatin1String direction : {QLatin1String("ASC"), QLatin1String("DESC")}) {
                    const QString order = QLatin1String(table.order);
                    copied += copyRows(damaged, fresh, name, columns,
                                       (order.contains(QLatin1String("%1")) ? order.arg(direction) : order) +
                                           QLatin1Char(' ') + direction);
                }
                salvaged.rows += copied;
                if (name == QLatin1String("person")) {
                    salvaged.people = copied;
                } else if (name == QLatin1String("conference")) {
                    salvaged.conferences = copied;
                }
            }
            transaction.commit();
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return salvaged;
}
