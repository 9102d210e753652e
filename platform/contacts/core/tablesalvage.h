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
 * that leaves a gap, what lies between the damaged places. It is found by halving the gap and walking up and
 * down from there, and by the keys that the table's indexes still know. For one use.
 */
class TableSalvage
{
public:
    /// @p keys are the columns of the primary key, or "rowid". @p clock bounds the search in gaps.
    TableSalvage(const QSqlDatabase &damaged, const QSqlDatabase &fresh, const QString &table,
                 const QStringList &keys, const QElapsedTimer &clock);

    /// How many rows were copied. Rows that refer to something lost are left out. Throws
    /// DatabaseError when @p fresh fails otherwise.
    int run();

private:
    enum class Direction { Up, Down };
    struct Walk
    {
        bool isWhole = false; ///< no damage was met
        RowKey last;          ///< of the row that was read last; empty without one
    };
    /// What lies between two keys could not be read so far.
    struct Gap
    {
        RowKey low;
        RowKey high;
        int failures; ///< so often it was halved without reading anything
    };

    bool prepare();
    /// Copies rows until the damage, from @p from on (down: without it) to before @p to; empty keys stand
    /// for the ends.
    Walk walk(Direction direction, const RowKey &from, const RowKey &to);
    void search(const RowKey &low, const RowKey &high);
    /// Looks up each row whose key an index knows, and copies those that are missing.
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
