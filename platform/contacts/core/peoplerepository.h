// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QSqlDatabase>
#include <QStringList>
#include <QVector>

#include <optional>

/// People and their contacts. Names and accounts compare case-insensitively for Latin letters. Throws
/// DatabaseError.
class PeopleRepository
{
public:
    explicit PeopleRepository(const QSqlDatabase &database) : m_database(database) {}

    std::optional<Person> byAccount(const QString &account) const;
    std::optional<Person> byUserId(const QString &userId) const;
    /// Everybody of that name, in anybody's contacts or none; at most @p limit.
    QVector<Person> byName(const QString &name, int limit) const;
    /// The person whose account or user id is @p said, or else the only one of that name.
    std::optional<Person> meantBy(const QString &said) const;
    QVector<Person> all() const;

    /// @p ownerId's contacts who can be invited as @p name: by their name or the owner's remark.
    QVector<Person> contactsByName(const QString &ownerId, const QString &name) const;
    /// Its statement, for tests of the query plan.
    static QString contactsByNameSql();
    /// @p ownerId's contacts whose name, remark or account starts with @p text, by account; at most @p limit.
    /// The cost grows with that.
    QVector<Person> contactsStartingWith(const QString &ownerId, const QString &text, int limit) const;
    std::optional<Person> contactByUserId(const QString &ownerId, const QString &userId) const;
    QVector<Person> contacts(const QString &ownerId) const;
    /// The contacts, and other people with a pending friend request, whose account comes after @p
    /// afterAccount, by account; at most @p limit. The cost does not depend on the number of other contacts.
    QVector<Person> knownAfter(const QString &ownerId, const QString &afterAccount, int limit) const;
    /// Likewise for everybody.
    QVector<Person> everybodyAfter(const QString &afterAccount, int limit) const;
    /// The names and remarks of @p ownerId's contacts, without duplicates; at most @p limit.
    QStringList contactNames(const QString &ownerId, int limit) const;
    /// The names that mean exactly one of @p ownerId's contacts, by account; at most @p limit.
    QStringList unmistakableContactNames(const QString &ownerId, int limit) const;
    Friendship friendship(const QString &ownerId, const QString &personId) const;
    /// The people who have asked @p userId to become a friend, with the user's remarks, by account; at most
    /// @p limit.
    QVector<Person> requestsTo(const QString &userId, int limit) const;
    /// Counts friends and pending requests.
    int friendCount(const QString &ownerId) const;

    void addPerson(const Person &person);
    void setKind(const QString &userId, AccountKind kind);
    /// Adds the person to the contacts, from which people can be invited, or updates the entry.
    void setContact(const QString &ownerId, const QString &personId, const QString &remarkName,
                    bool isFriend);
    /// Sends a friend request to a person, in the contacts or not.
    void addFriendRequest(const QString &ownerId, const QString &personId);
    /// Returns whether there was one.
    bool removeFriendRequest(const QString &ownerId, const QString &personId);
    void removeAll();

private:
    QSqlDatabase m_database;
};
