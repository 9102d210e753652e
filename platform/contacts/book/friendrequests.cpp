// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "book/friendrequests.h"

#include "book/contactsbook.h"
#include "core/outcome.h"

QVector<Person> FriendRequests::waiting(int limit) const
{
    const std::optional<Person> user = m_book.session().user();
    return user ? m_book.people().requestsTo(user->userId, limit) : QVector<Person>();
}

QString FriendRequests::accept(const QString &account)
{
    return answer(account, Reply::Accept);
}

QString FriendRequests::decline(const QString &account)
{
    return answer(account, Reply::Decline);
}

QString FriendRequests::answer(const QString &account, Reply reply)
{
    QString outcome = Outcome::InternalError;
    const bool isDone = m_book.change([&] {
        PeopleRepository &people = m_book.people();
        const std::optional<Person> user = m_book.session().user();
        if (!user) {
            outcome = Outcome::NotLoggedIn;
            return false;
        }
        const std::optional<Person> asker = people.byAccount(account);
        if (!asker || !people.removeFriendRequest(asker->userId, user->userId)) {
            outcome = Outcome::NotFound; // withdrawn or answered meanwhile
            return false;
        }
        if (reply == Reply::Accept) {
            if (people.removeFriendRequest(user->userId, asker->userId)) { // both asked: this answers both
                m_book.reminders().noteRequestTold(asker->userId, user->userId);
            }
            if (people.friendCount(user->userId) >= m_book.session().friendLimit()) {
                outcome = Outcome::ExceedFriendLimit;
                return false;
            }
            befriend(user->userId, asker->userId);
            befriend(asker->userId, user->userId);
        }
        m_book.reminders().noteRequestTold(user->userId, asker->userId);
        return true;
    });
    return isDone ? QString(Outcome::Ok) : outcome;
}

void FriendRequests::befriend(const QString &ownerId, const QString &personId)
{
    const std::optional<Person> known = m_book.people().contactByUserId(ownerId, personId);
    m_book.people().setContact(ownerId, personId, known ? known->remarkName : QString(), true);
}
