// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/membermatch.h"

#include "core/peoplerepository.h"

#include <algorithm>

namespace {

QVector<Person> lookUp(const PeopleRepository &people, const QString &ownerId, const RequestedMember &member)
{
    if (member.userId.isEmpty()) {
        const QString name = member.name.trimmed();
        return name.isEmpty() ? QVector<Person>() : people.contactsByName(ownerId, name);
    }
    const std::optional<Person> person = people.contactByUserId(ownerId, member.userId);
    return person ? QVector<Person>{*person} : QVector<Person>();
}

bool isAmong(const QVector<Person> &people, const QString &userId)
{
    return std::any_of(people.cbegin(), people.cend(),
                       [&userId](const Person &person) { return person.userId == userId; });
}

} // namespace

MemberMatches::MemberMatches(const PeopleRepository &people, const QString &ownerId,
                             const QVector<RequestedMember> &members)
{
    m_matches.reserve(members.size());
    for (const RequestedMember &member : members) {
        m_matches.append({member, lookUp(people, ownerId, member)});
    }
}

bool MemberMatches::hasDuplicates() const
{
    return std::any_of(m_matches.cbegin(), m_matches.cend(),
                       [](const MemberMatch &match) { return match.isDuplicate(); });
}

bool MemberMatches::isEverybodyFound() const
{
    return std::all_of(m_matches.cbegin(), m_matches.cend(),
                       [](const MemberMatch &match) { return match.isFound(); });
}

QVector<Person> MemberMatches::found() const
{
    QVector<Person> people;
    for (const MemberMatch &match : m_matches) {
        if (match.isFound() && !isAmong(people, match.people.constFirst().userId)) {
            people.append(match.people.constFirst());
        }
    }
    return people;
}

QVector<MemberMatch> MemberMatches::of(const QVector<Person> &people) const
{
    QVector<MemberMatch> matches;
    QVector<Person> missing = people;
    for (const MemberMatch &match : m_matches) {
        if (!match.isFound() || !isAmong(missing, match.people.constFirst().userId)) {
            continue;
        }
        matches.append(match);
        const QString userId = match.people.constFirst().userId;
        missing.erase(std::remove_if(missing.begin(), missing.end(),
                                     [&userId](const Person &person) { return person.userId == userId; }),
                      missing.end());
    }
    return matches;
}
