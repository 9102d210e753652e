// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QSqlDatabase>
#include <QStringList>
#include <QVector>

#include <optional>

/// People and who has whom in the contacts. Names and accounts are compared without regard to the case of
/// Latin letters. Throws DatabaseError.
class PeopleRepository
{
public:
    explicit PeopleRepository(const QSqlDatabase &database) : m_database(database) {}

    std::optional<Person> byAccount(const QString &account) const;
    std::optional<Person> byUserId(const QString &userId) const;
    /// Everybody of that name, whether in somebody's contacts or not; at most @p limit.
    QVector<Person> byName(const QString &name, int limit) const;
    /// Whose account or user id @p said is, or else the only one of that name.
    std::optional<Person> meantBy(const QString &said) const;
    QVector<Person> all() const;

    /// Those of @p ownerId's contacts who can be invited as @p name: it is their name or the owner's remark
    /// for them.
    QVector<Person> contactsByName(const QString &ownerId, const QString &name) const;
    /// The statement behind it, for a look at its plan.
    static QString contactsByNameSql();
    /// Those of @p ownerId's contacts whose name, remark or account starts with @p text, by their accounts;
    /// at most @p limit, and at a cost that grows with that.
    QVector<Person> contactsStartingWith(const QString &ownerId, const QString &text, int limit) const;
    std::optional<Person> contactByUserId(const QString &ownerId, const QString &userId) const;
    QVector<Person> contacts(const QString &ownerId) const;
    /// The contacts, and whoever else was asked to become a friend, whose account comes after @p
    /// afterAccount, by their accounts; at most @p limit. Its cost does not depend on how many other contacts
    /// there are.
    QVector<Person> knownAfter(const QString &ownerId, const QString &afterAccount, int limit) const;
    /// The same of everybody.
    QVector<Person> everybodyAfter(const QString &afterAccount, int limit) const;
    /// The names and remarks of @p ownerId's contacts, each once; at most @p limit.
    QStringList contactNames(const QString &ownerId, int limit) const;
    /// The names that mean exactly one of @p ownerId's contacts, in the order of the accounts; at most
    /// @p limit.
    QStringList unmistakableContactNames(const QString &ownerId, int limit) const;
    Friendship friendship(const QString &ownerId, const QString &personId) const;
    /// Who has asked @p userId to become a friend, with the user's remarks, by their accounts; at most @p
    /// limit.
    QVector<Person> requestsTo(const QString &userId, int limit) const;
    /// Friends and open requests.
    int friendCount(const QString &ownerId) const;

    void addPerson(const Person &person);
    void setKind(const QString &userId, AccountKind kind);
    /// Puts the person into the contacts, where they can be invited, or changes the entry.
    void setContact(const QString &ownerId, const QString &personId, const QString &remarkName,
                    bool isFriend);
    /// Asks somebody, in the contacts or not, to become a friend.
    void addFriendRequest(const QString &ownerId, const QString &personId);
    /// Whether there was one.
    bool removeFriendRequest(const QString &ownerId, const QString &personId);
    void removeAll();

private:
    QSqlDatabase m_database;
};
