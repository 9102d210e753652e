// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/middlekey.h"

#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>

/**
 * Copies what can be read of one table of a damaged database: from the beginning and from the end, and where
 * that leaves a gap, what lies between the damaged places. That is found by bisecting the gap and walking up
 * and down from there, and by the keys that the table's indexes still know. Use once.
 */
class TableSalvage
{
public:
    /// @p keys are the columns of the primary key, or "rowid". @p clock limits the search in gaps.
    TableSalvage(const QSqlDatabase &damaged, const QSqlDatabase &fresh, const QString &table,
                 const QStringList &keys, const QElapsedTimer &clock);

    /// The number of rows copied. Leaves out rows that refer to something lost. Throws DatabaseError when @p
    /// fresh fails otherwise.
    int run();

private:
    enum class Direction { Up, Down };
    struct Walk
    {
        bool isWhole = false; ///< no damage was met
        RowKey last;          ///< of the row that was read last; empty without one
    };
    /// A range of keys that could not be read so far.
    struct Gap
    {
        RowKey low;
        RowKey high;
        int failures; ///< so often it was halved without reading anything
    };

    bool prepare();
    /// Copies rows from @p from on in @p direction, until the damage or before @p to; empty keys stand for
    /// the ends.
    Walk walk(Direction direction, const RowKey &from, const RowKey &to);
    void search(const RowKey &low, const RowKey &high);
    /// Looks up each key known to an index and copies the missing rows.
    void copyByIndexes();
    QVector<RowKey> keysIn(const QString &index, Direction direction) const;
    bool isCopied(const RowKey &key);
    void copy(const QSqlQuery &row);
    RowKey keyOf(const QSqlQuery &row, int column) const;
    QString ordered(const QStringList &columns, Direction direction) const;

    QSqlDatabase m_damaged;
    QSqlDatabase m_fresh;
    QString m_table;
    QStringList m_keys;
    const QElapsedTimer &m_clock;
    QStringList m_columns; ///< the keys first
    QSqlQuery m_write;
    QSqlQuery m_find;
    MiddleKey m_middle;
    int m_copied = 0;
};
