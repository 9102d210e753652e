// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peopleorder.h"

#include <algorithm>

void PeopleOrder::start(PersonColumn column, Qt::SortOrder order)
{
    m_column = column;
    m_order = order;
    m_entries.clear();
}

void PeopleOrder::add(const QVector<Person> &people)
{
    const auto comesFirst = [this](const Entry &left, const Entry &right) {
        const int order = left.key.compare(right.key);
        return m_order == Qt::AscendingOrder ? order < 0 : order > 0;
    };
    const auto former = static_cast<std::ptrdiff_t>(m_entries.size());
    for (const Person &person : people) {
        m_entries.push_back({m_collator.sortKey(personText(person, m_column)), person});
    }
    const auto middle = m_entries.begin() + former;
    std::stable_sort(middle, m_entries.end(), comesFirst);
    std::inplace_merge(m_entries.begin(), middle, m_entries.end(), comesFirst);
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
