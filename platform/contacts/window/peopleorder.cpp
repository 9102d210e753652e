// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peopleorder.h"

bool PeopleOrder::Before::operator()(const Entry &left, const Entry &right) const
{
    const int compared = left.key.compare(right.key);
    return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
}

void PeopleOrder::start(PersonColumn column, Qt::SortOrder order)
{
    m_column = column;
    m_entries = Entries(Before{order});
}

void PeopleOrder::add(const QVector<Person> &people)
{
    for (const Person &person : people) {
        m_entries.insert({m_collator.sortKey(personText(person, m_column)), person});
    }
}

QVector<Person> PeopleOrder::people() const
{
    QVector<Person> people;
    people.reserve(static_cast<int>(m_entries.size()));
    for (const Entry &entry : m_entries) {
        people.append(entry.person);
    }
    return people;
}
