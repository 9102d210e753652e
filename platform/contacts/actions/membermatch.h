// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "actions/requestparameters.h"

#include "core/person.h"

class PeopleRepository;

/// One requested member and the contacts that match.
struct MemberMatch
{
    RequestedMember asked;
    QVector<Person> people;

    bool isFound() const { return people.size() == 1; }
    bool isDuplicate() const { return people.size() > 1; }
};

/// The matches of all members of a request, in their order.
class MemberMatches
{
public:
    /// Looks the members up among @p ownerId's contacts: by id if one was picked, by name otherwise.
    MemberMatches(const PeopleRepository &people, const QString &ownerId,
                  const QVector<RequestedMember> &members);

    const QVector<MemberMatch> &all() const { return m_matches; }
    bool hasDuplicates() const;
    bool isEverybodyFound() const;
    /// The people found, without duplicates.
    QVector<Person> found() const;
    /// The members that match exactly one of @p people, each person once.
    QVector<MemberMatch> of(const QVector<Person> &people) const;

private:
    QVector<MemberMatch> m_matches;
};
