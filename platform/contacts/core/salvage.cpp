// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/salvage.h"

#include "core/tablesalvage.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QUuid>

namespace {

/// Referenced tables first.
struct SalvagedTable
{
    const char *name;
    const char *keys;
};
constexpr SalvagedTable Tables[] = {
    {"person", "user_id"},
    {"contact", "owner_id person_id"},
    {"friend_request", "owner_id person_id"},
    {"conference", "id"},
    {"participant", "conference_id user_id"},
    {"creation", "rowid"}, // where there is no other key, it tells that a row has been copied already
    {"performed_request", "id"},
    {"session", "id"},
    {"reminder_settings", "id"},
    {"shown_reminder", "conference_id user_id kind start_msecs"},
};

/// Detaches at the end of the scope, which outlives the statements.
struct Connection
{
    Connection() = default;
    ~Connection() { QSqlDatabase::removeDatabase(name); }
    Q_DISABLE_COPY(Connection)

    const QString name = QUuid::createUuid().toString();
};

} // namespace

Salvaged salvage(const QString &damagedFile, const QSqlDatabase &fresh)
{
    const Connection connection;
    Salvaged salvaged;
    QSqlDatabase damaged = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection.name);
    damaged.setDatabaseName(damagedFile);
    damaged.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!damaged.open()) {
        return salvaged;
    }
    QElapsedTimer clock;
    clock.start();
    for (const SalvagedTable &table : Tables) {
        const QString name = QLatin1String(table.name);
        const QStringList keys = QString(QLatin1String(table.keys)).split(QLatin1Char(' '));
        const int copied = TableSalvage(damaged, fresh, name, keys, clock).run();
        salvaged.rows += copied;
        if (name == QLatin1String("person")) {
            salvaged.people = copied;
        } else if (name == QLatin1String("conference")) {
            salvaged.conferences = copied;
        }
    }
    return salvaged;
}
