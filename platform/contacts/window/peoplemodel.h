// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QAbstractTableModel>
#include <QVector>

class ContactsBook;

/// The contacts of whoever is logged in, as a table that follows the database. On the GUI thread.
class PeopleModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Account, Relation, Kind, ColumnCount };
    enum Role { AccountRole = Qt::UserRole, SearchRole };

    /// @p book must outlive it.
    explicit PeopleModel(ContactsBook &book, QObject *parent = nullptr);

    void reload();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    ContactsBook &m_book;
    QVector<Person> m_people;
};
