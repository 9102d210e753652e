// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QAbstractTableModel>
#include <QVector>

class ContactsBook;

/**
 * The contacts of whoever is logged in, as a table that follows the database, filtered and sorted by itself.
 * In the order of the accounts it reads page by page, as far as somebody scrolls; any other order takes them
 * all. On the GUI thread.
 */
class PeopleModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Account, Relation, Kind, ColumnCount };
    enum Role { AccountRole = Qt::UserRole };

    /// @p book must outlive it.
    explicit PeopleModel(ContactsBook &book, QObject *parent = nullptr);

    void reload();
    /// Leaves those whose texts contain @p text, whatever the case of its letters.
    void setFilter(const QString &text);
    void sort(int column, Qt::SortOrder order) override;

    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVector<Person> nextRows(int count);
    void read(int count);
    bool isInAccountOrder() const { return m_sortColumn == Account && m_sortOrder == Qt::AscendingOrder; }

    ContactsBook &m_book;
    QString m_filter;
    int m_sortColumn = Account;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QVector<Person> m_people;
    QString m_ownerId;
    QString m_readUntil;    ///< the account of the last contact that was looked at
    bool m_hasMore = false; ///< whether there may be contacts behind it
};
