// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/peopleorder.h"
#include "window/peoplereader.h"
#include "window/recordmodel.h"

#include <QTimer>

class ContactsBook;

/**
 * The people of whoever is logged in, as a table that follows the database, searched and sorted by itself. In
 * the order of the accounts it reads page by page, as far as somebody scrolls; any other order takes them
 * all. Whatever takes long is done in the event loop, a few milliseconds at a time. On the GUI thread.
 */
class PeopleModel : public RecordModel<Person, &Person::userId>
{
    Q_OBJECT

public:
    enum Column { Name, Account, Relation, Kind, ColumnCount };
    enum Role { AccountRole = Qt::UserRole, FriendshipRole };

    /// @p book must outlive it.
    explicit PeopleModel(ContactsBook &book, QObject *parent = nullptr);

    void reload();
    /// Leaves those whose name, remark or account contains @p text, whatever the case of its letters.
    void setFilter(const QString &text);
    void setScope(PeopleScope scope);
    void sort(int column, Qt::SortOrder order) override;

    bool isLoggedIn() const { return !m_ownerId.isEmpty(); }
    bool isReading() const { return m_slices.isActive(); }

    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

Q_SIGNALS:
    /// The rows are those that were asked for.
    void settled();

private:
    /// Rows are shown as they are read, or the former ones stay until all that are wanted have been read.
    enum class Showing { AsTheyCome, WhenComplete };

    QVariant header(int column) const override;
    QVariant value(const Person &person, int column, int role) const override;

    /// Reads from the next turn of the event loop on.
    void start(Showing showing, int wanted);
    /// Has the first portion when it returns.
    void startAtOnce(Showing showing, int wanted);
    void readOn();
    void finish();
    QString currentOwner() const;
    bool isInAccountOrder() const { return m_sortColumn == Account && m_sortOrder == Qt::AscendingOrder; }

    ContactsBook &m_book;
    PeopleReader m_reader;
    PeopleOrder m_order; ///< what was read so far, in another order than that of the accounts
    QTimer m_slices;
    Showing m_showing = Showing::AsTheyCome;
    int m_wanted = 0;
    bool m_isFirstSlice = false;
    bool m_isStale = false; ///< something has changed since the reading began
    QVector<Person> m_fresh;
    QString m_ownerId;
    QString m_filter;
    PeopleScope m_scope = PeopleScope::Everybody;
    int m_sortColumn = Account;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
