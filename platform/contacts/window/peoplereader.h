// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QVector>

class ContactsBook;

/// Which people of whoever is logged in.
enum class PeopleScope { Everybody, Friends, Asked };

/**
 * Reads the people of one owner by their accounts, those that are wanted, a few milliseconds at a time: a
 * search through everybody must not stop the window. On the book's thread.
 */
class PeopleReader
{
public:
    /// @p book must outlive it.
    explicit PeopleReader(ContactsBook &book) : m_book(book) {}

    /// From the first one; nobody is found for an empty @p ownerId.
    void start(const QString &ownerId, const QString &text, PeopleScope scope);
    /// The next ones: until there are @p wanted, or until the time for one go is up. Throws DatabaseError.
    QVector<Person> read(int wanted);
    /// Whether there may be more behind them.
    bool hasMore() const { return m_hasMore; }
    void stop() { m_hasMore = false; }

private:
    bool isWanted(const Person &person) const;

    ContactsBook &m_book;
    QString m_ownerId;
    QString m_text;
    PeopleScope m_scope = PeopleScope::Everybody;
    QString m_readUntil; ///< the account of the last person that was looked at
    bool m_hasMore = false;
};
