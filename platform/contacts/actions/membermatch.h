// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "actions/requestparameters.h"

#include "core/person.h"

class PeopleRepository;

/// One asked-for member and the contacts that it may mean.
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
    /// Looks the members up among @p ownerId's contacts: by id when one was picked, else by name.
    MemberMatches(const PeopleRepository &people, const QString &ownerId,
                  const QVector<RequestedMember> &members);

    const QVector<MemberMatch> &all() const { return m_matches; }
    bool hasDuplicates() const;
    bool isEverybodyFound() const;
    /// The people that were found, each once.
    QVector<Person> found() const;
    /// The matches that mean exactly one of @p people, each person once.
    QVector<MemberMatch> of(const QVector<Person> &people) const;

private:
    QVector<MemberMatch> m_matches;
};
