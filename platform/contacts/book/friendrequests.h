// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QVector>

class ContactsBook;

/// The friend requests to the user who is logged in, and the user's answers. On the book's thread.
class FriendRequests
{
public:
    /// @p book must outlive it.
    explicit FriendRequests(ContactsBook &book) : m_book(book) {}

    /// The people waiting for an answer, by account; at most @p limit. Throws DatabaseError.
    QVector<Person> waiting(int limit) const;
    /// Makes both friends, and each other's contacts if they were not. Returns an outcome, see
    /// core/outcome.h; never throws.
    QString accept(const QString &account);
    /// Deletes the request, which may be sent again.
    QString decline(const QString &account);

private:
    enum class Reply { Accept, Decline };
    QString answer(const QString &account, Reply reply);
    void befriend(const QString &ownerId, const QString &personId);

    ContactsBook &m_book;
};
