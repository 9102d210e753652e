// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>
#include <QVector>

QT_BEGIN_NAMESPACE
class QTableView;
QT_END_NAMESPACE

/**
 * Gives each column of a table the room that its visible texts need, within limits, and the rest to one of
 * them. That one never falls below its least width: a table that is too narrow scrolls. A child of its table.
 */
class ColumnWidths : public QObject
{
    Q_OBJECT

public:
    struct Limits
    {
        int least;
        int most;
    };

    /// One entry per column. @p stretched takes what is left, from its least width on. The table must have
    /// its model.
    ColumnWidths(QTableView *table, QVector<Limits> limits, int stretched);

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Once for a burst of changes.
    void fitSoon();
    void fit();

    QTableView *m_table; ///< the parent
    QVector<Limits> m_limits;
    int m_stretched;
    bool m_isPending = false;
};
