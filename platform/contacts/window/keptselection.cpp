// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/keptselection.h"

#include <QScrollBar>

KeptSelection::KeptSelection(QTableView *table, int keyRole)
    : QObject(table)
    , m_table(table)
    , m_keyRole(keyRole)
{
    connect(m_table->model(), &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_key = selected(m_keyRole);
        m_scrolledTo = m_table->verticalScrollBar()->value();
    });
    connect(m_table->model(), &QAbstractItemModel::modelReset, this, [this] {
        select(m_key);
        m_table->verticalScrollBar()->setValue(m_scrolledTo);
        Q_EMIT restored();
    });
}

QVariant KeptSelection::selected(int role) const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? QVariant() : rows.constFirst().data(role);
}

void KeptSelection::select(const QVariant &key)
{
    if (!key.isValid()) {
        return;
    }
    const QAbstractItemModel *model = m_table->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (model->index(row, 0).data(m_keyRole) == key) {
            m_table->selectRow(row);
            return;
        }
    }
}
