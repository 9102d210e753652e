// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAbstractTableModel>
#include <QVector>

#include <algorithm>

/**
 * A table with one record a row, read from the book by whoever derives from it; @p Id is the member that
 * tells one record from another. Rows that are read again keep their selection.
 */
template <typename Record, auto Id>
class RecordModel : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : m_records.size();
    }
    int columnCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : m_columnCount;
    }
    QVariant data(const QModelIndex &index, int role) const final
    {
        const bool isThere = index.isValid() && index.row() < m_records.size();
        return isThere ? value(m_records.at(index.row()), index.column(), role) : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const final
    {
        const bool isShown = orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
                             section < m_columnCount;
        return isShown ? header(section) : QVariant();
    }

protected:
    explicit RecordModel(int columnCount, QObject *parent)
        : QAbstractTableModel(parent)
        , m_columnCount(columnCount)
    {
    }

    virtual QVariant header(int column) const = 0;
    virtual QVariant value(const Record &record, int column, int role) const = 0;

    const QVector<Record> &records() const { return m_records; }
    static bool hasSameRows(const QVector<Record> &left, const QVector<Record> &right)
    {
        return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(),
                          [](const Record &one, const Record &other) { return one.*Id == other.*Id; });
    }
    /// Starts anew unless the rows are the same.
    void replace(QVector<Record> records)
    {
        if (hasSameRows(records, m_records)) {
            m_records = std::move(records);
            announceChange();
            return;
        }
        beginResetModel();
        m_records = std::move(records);
        endResetModel();
    }
    void append(const QVector<Record> &records)
    {
        if (!records.isEmpty()) {
            beginInsertRows({}, m_records.size(), m_records.size() + records.size() - 1);
            m_records += records;
            endInsertRows();
        }
    }
    /// Whoever shows the rows reads them again.
    void announceChange()
    {
        if (!m_records.isEmpty()) {
            Q_EMIT dataChanged(index(0, 0), index(m_records.size() - 1, m_columnCount - 1));
        }
    }

private:
    const int m_columnCount;
    QVector<Record> m_records;
};
