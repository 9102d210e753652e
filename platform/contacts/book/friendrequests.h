// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QVector>

class ContactsBook;

/// The friend requests to whoever is logged in, and the user's answers. On the book's thread.
class FriendRequests
{
public:
    /// @p book must outlive it.
    explicit FriendRequests(ContactsBook &book) : m_book(book) {}

    /// Who waits for an answer, by their accounts; at most @p limit. Throws DatabaseError.
    QVector<Person> waiting(int limit) const;
    /// Both become friends, and in each other's contacts if they were not. Answers with an outcome's word,
    /// see core/outcome.h; never throws.
    QString accept(const QString &account);
    /// The request is gone; it may be sent again.
    QString decline(const QString &account);

private:
    enum class Reply { Accept, Decline };
    QString answer(const QString &account, Reply reply);
    void befriend(const QString &ownerId, const QString &personId);

    ContactsBook &m_book;
};
