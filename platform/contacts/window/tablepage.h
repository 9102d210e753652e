// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLineEdit>
#include <QTableView>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
QT_END_NAMESPACE

class KeptSelection;

/// A table that says something friendly where it has no rows.
class HintedTable : public QTableView
{
    Q_OBJECT

public:
    using QTableView::QTableView;
    void setHint(const QString &hint);

private:
    void paintEvent(QPaintEvent *event) override;

    QString m_hint;
};

/**
 * A filter over a sortable table, with room for controls above and below: one page of the window. Its
 * selection survives when the model starts anew.
 */
class TablePage : public QWidget
{
    Q_OBJECT

public:
    /// @p model sorts and filters by itself and must outlive it; @p keyRole names a row. It begins sorted by
    /// @p sortColumn, upwards.
    TablePage(QAbstractItemModel *model, int keyRole, int sortColumn, QWidget *parent = nullptr);

    /// What all tables of the window have in common; @p table must have its model.
    static void dress(QTableView *table, int sortColumn, Qt::SortOrder order);

    QLineEdit *filter() const { return m_filter; }
    HintedTable *table() const { return m_table; }
    /// Beside the filter, and below the table.
    QHBoxLayout *upperRow() const { return m_upperRow; }
    QHBoxLayout *lowerRow() const { return m_lowerRow; }
    /// The value of @p role in the row that is selected; invalid without one.
    QVariant selected(int role) const;
    void select(const QVariant &key);

Q_SIGNALS:
    void selectionChanged();
    /// Return, or a double click, on a row.
    void activated();

private:
    QLineEdit *m_filter; ///< children, all of them
    HintedTable *m_table;
    KeptSelection *m_selection;
    QHBoxLayout *m_upperRow;
    QHBoxLayout *m_lowerRow;
};
