// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"
#include "window/persontexts.h"

#include <QCollator>
#include <QVector>

#include <set>

/// People in the order of one column's texts, as the user's language sorts them. They come in portions, each
/// of which finds its place at once, so that there is no long sorting at the end. Who comes later of two with
/// the same text stays behind.
class PeopleOrder
{
public:
    void start(PersonColumn column, Qt::SortOrder order);
    void add(const QVector<Person> &people);
    QVector<Person> people() const;

private:
    struct Entry
    {
        QCollatorSortKey key;
        Person person;
    };

    struct Before
    {
        bool operator()(const Entry &left, const Entry &right) const;
        Qt::SortOrder order = Qt::AscendingOrder;
    };
    /// A tree: a portion costs the same whether a thousand or a million are there.
    using Entries = std::multiset<Entry, Before>;

    PersonColumn m_column = PersonColumn::Account;
    QCollator m_collator;
    Entries m_entries;
};
