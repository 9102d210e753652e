// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"
#include "window/persontexts.h"

#include <QCollator>
#include <QVector>

#include <vector>

/// People in the order of one column's texts, as the user's language sorts them. They come in portions, each
/// of which is merged at once, so that there is no long sorting at the end.
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

    PersonColumn m_column = PersonColumn::Account;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    QCollator m_collator;
    std::vector<Entry> m_entries;
};
