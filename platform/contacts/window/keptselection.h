// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTableView>
#include <QVariant>

/// Keeps the selected row of a table, and how far it is scrolled, when its model starts anew. A row is known
/// by its key. Belongs to the table.
class KeptSelection final : public QObject
{
    Q_OBJECT

public:
    /// @p table must have its model, and keeps it. @p keyRole names a row.
    KeptSelection(QTableView *table, int keyRole);

    /// The value of @p role in the row that is selected; invalid without one.
    QVariant selected(int role) const;
    /// Selects the row of that key, if there is one.
    void select(const QVariant &key);

Q_SIGNALS:
    /// The model has started anew. The selection model does not tell that a selected row has gone with it.
    void restored();

private:
    QTableView *m_table; ///< the parent
    int m_keyRole;
    QVariant m_key;
    int m_scrolledTo = 0;
};
