// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/tablesalvage.h"

#include "core/databaseerror.h"

#include <QQueue>
#include <QSqlError>

#include <algorithm>

namespace {

/// A gap bisected this often without reading anything holds nothing, or nothing that can be found.
constexpr int MostFailures = 8;
/// Time limit for the search in gaps: the user is waiting for the start.
constexpr qint64 LongestSearchMsecs = 20000;

const QString Comma = QStringLiteral(", "); // clazy:exclude=non-pod-global-static

/// What PRAGMA @p pragma lists in @p column; nothing when it cannot be read.
QStringList listed(const QSqlDatabase &database, const QString &pragma, int column)
{
    QStringList names;
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (query.exec(QStringLiteral("PRAGMA ") + pragma)) {
        while (query.next()) {
            names.append(query.value(column).toString());
        }
    }
    return names;
}

QStringList columnsOf(const QSqlDatabase &database, const QString &table)
{
    return listed(database, QStringLiteral("table_info(%1)").arg(table), 1);
}

/// "(?, ?, ?)"
QString places(int count)
{
    QStringList marks;
    for (int i = 0; i < count; ++i) {
        marks.append(QStringLiteral("?"));
    }
    return QLatin1Char('(') + marks.join(Comma) + QLatin1Char(')');
}

void bind(QSqlQuery &query, const RowKey &key)
{
    for (const QVariant &value : key) {
        query.addBindValue(value);
    }
}

} // namespace

TableSalvage::TableSalvage(const QSqlDatabase &damaged, const QSqlDatabase &fresh, const QString &table,
                           const QStringList &keys, const QElapsedTimer &clock)
    : m_damaged(damaged)
    , m_fresh(fresh)
    , m_table(table)
    , m_keys(keys)
    , m_clock(clock)
    , m_write(fresh)
    , m_find(fresh)
{
}

int TableSalvage::run()
{
    if (!prepare()) {
        return 0;
    }
    const Walk up = walk(Direction::Up, {}, {});
    const Walk down = walk(Direction::Down, {}, {});
    if (!up.isWhole || !down.isWhole) {
        copyByIndexes();
        search(up.last, down.last);
    }
    return m_copied;
}

bool TableSalvage::prepare()
{
    m_columns = m_keys;
    const QStringList known = columnsOf(m_fresh, m_table);
    const QStringList present = columnsOf(m_damaged, m_table);
    for (const QString &column : present) {
        if (known.contains(column) && !m_columns.contains(column)) {
            m_columns.append(column);
        }
    }
    // The session's row exists already, and a row copied from the other end is not copied again.
    const QString verb =
        m_table == QLatin1String("session") ? QStringLiteral("REPLACE") : QStringLiteral("IGNORE");
    return !present.isEmpty() &&
           m_write.prepare(QStringLiteral("INSERT OR %1 INTO %2 (%3) VALUES %4")
                               .arg(verb, m_table, m_columns.join(Comma), places(m_columns.size()))) &&
           m_find.prepare(QStringLiteral("SELECT 1 FROM %1 WHERE (%2) = %3")
                              .arg(m_table, m_keys.join(Comma), places(m_keys.size())));
}

TableSalvage::Walk TableSalvage::walk(Direction direction, const RowKey &from, const RowKey &to)
{
    const bool isUp = direction == Direction::Up;
    const QString keys = QLatin1Char('(') + m_keys.join(Comma) + QLatin1Char(')');
    QStringList conditions;
    if (!from.isEmpty()) {
        conditions << keys + (isUp ? QStringLiteral(" >= ") : QStringLiteral(" < ")) + places(from.size());
    }
    if (!to.isEmpty()) {
        conditions << keys + (isUp ? QStringLiteral(" < ") : QStringLiteral(" > ")) + places(to.size());
    }
    QString sql = QStringLiteral("SELECT %1 FROM %2 ").arg(m_columns.join(Comma), m_table);
    if (!conditions.isEmpty()) {
        sql += QStringLiteral("WHERE ") + conditions.join(QStringLiteral(" AND "));
    }
    QSqlQuery read(m_damaged);
    read.setForwardOnly(true);
    Walk walk;
    if (!read.prepare(sql + QStringLiteral(" ORDER BY ") + ordered(m_keys, direction))) {
        return walk;
    }
    bind(read, from);
    bind(read, to);
    if (!read.exec()) {
        return walk;
    }
    while (read.next()) {
        copy(read);
        walk.last = keyOf(read, 0);
    }
    walk.isWhole = !read.lastError().isValid();
    return walk;
}

void TableSalvage::search(const RowKey &low, const RowKey &high)
{
    QQueue<Gap> gaps;
    if (!low.isEmpty() && !high.isEmpty()) {
        gaps.enqueue({low, high, 0});
    }
    while (!gaps.isEmpty() && m_clock.elapsed() < LongestSearchMsecs) {
        const Gap gap = gaps.dequeue();
        const std::optional<RowKey> middle = m_middle.between(gap.low, gap.high);
        if (!middle || gap.failures > MostFailures) {
            continue;
        }
        const auto failures = [&gap](const Walk &walk) {
            return walk.last.isEmpty() ? gap.failures + 1 : 0;
        };
        const Walk up = walk(Direction::Up, *middle, gap.high);
        if (!up.isWhole) {
            gaps.enqueue({up.last.isEmpty() ? *middle : up.last, gap.high, failures(up)});
        }
        const Walk down = walk(Direction::Down, *middle, gap.low);
        if (!down.isWhole) {
            gaps.enqueue({gap.low, down.last.isEmpty() ? *middle : down.last, failures(down)});
        }
    }
}

void TableSalvage::copyByIndexes()
{
    const QStringList indexes = listed(m_damaged, QStringLiteral("index_list(%1)").arg(m_table), 1);
    QSqlQuery read(m_damaged);
    read.setForwardOnly(true);
    if (!read.prepare(QStringLiteral("SELECT %1 FROM %2 WHERE (%3) = %4")
                          .arg(m_columns.join(Comma), m_table, m_keys.join(Comma), places(m_keys.size())))) {
        return;
    }
    for (const QString &index : indexes) {
        for (const Direction direction : {Direction::Up, Direction::Down}) {
            const QVector<RowKey> keys = keysIn(index, direction);
            for (const RowKey &key : keys) {
                if (m_clock.elapsed() >= LongestSearchMsecs) {
                    return;
                }
                if (isCopied(key)) {
                    continue;
                }
                bind(read, key);
                if (read.exec() && read.next()) {
                    copy(read);
                }
            }
        }
    }
}

QVector<RowKey> TableSalvage::keysIn(const QString &index, Direction direction) const
{
    const QStringList columns = listed(m_damaged, QStringLiteral("index_info(%1)").arg(index), 2);
    QVector<RowKey> keys;
    QSqlQuery read(m_damaged);
    read.setForwardOnly(true);
    // In the index's own order; any other would sort everything before the first row appears.
    if (!columns.isEmpty() &&
        read.exec(QStringLiteral("SELECT %1 FROM %2 INDEXED BY %3 ORDER BY %4")
                      .arg(m_keys.join(Comma), m_table, index, ordered(columns, direction)))) {
        while (read.next()) {
            keys.append(keyOf(read, 0));
        }
    }
    return keys;
}

bool TableSalvage::isCopied(const RowKey &key)
{
    bind(m_find, key);
    const bool is = m_find.exec() && m_find.next();
    m_find.finish();
    return is;
}

void TableSalvage::copy(const QSqlQuery &row)
{
    for (int column = 0; column < m_columns.size(); ++column) {
        m_write.bindValue(column, row.value(column));
    }
    m_middle.meet(keyOf(row, 0));
    if (m_write.exec()) {
        m_copied += m_write.numRowsAffected();
        return;
    }
    // Skips a row that refers to something lost, or is invalid. A full disk stops it.
    const DatabaseError error(m_write.lastError(), m_table);
    if (!error.isConstraint()) {
        throw error;
    }
}

RowKey TableSalvage::keyOf(const QSqlQuery &row, int column) const
{
    RowKey key;
    for (int i = 0; i < m_keys.size(); ++i) {
        key.append(row.value(column + i));
    }
    return key;
}

QString TableSalvage::ordered(const QStringList &columns, Direction direction) const
{
    const QString way = direction == Direction::Up ? QStringLiteral(" ASC") : QStringLiteral(" DESC");
    return columns.join(way + Comma) + way;
}
