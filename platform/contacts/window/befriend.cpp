// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/befriend.h"

#include "actionnames.h"
#include "book/contactsbook.h"
#include "book/friendrequests.h"
#include "core/jsonkeys.h"
#include "core/outcome.h"
#include "window/bookaction.h"

#include <QCoreApplication>

namespace {

/// The account of whoever is meant, if they have asked the user; empty otherwise.
QString askerMeant(ContactsBook &book, const QString &said)
{
    try {
        const std::optional<Person> user = book.session().user();
        const std::optional<Person> person = book.people().meantBy(said);
        const bool hasAsked =
            user && person && book.people().friendship(person->userId, user->userId) == Friendship::Requested;
        return hasAsked ? person->account : QString();
    } catch (const std::exception &error) {
        qWarning("Cannot tell who sent a friend request: %s", error.what());
        book.noteFailure(error);
        return {};
    }
}

} // namespace

BefriendResult befriend(ContactsBook &book, const QString &said)
{
    const QString asker = askerMeant(book, said);
    if (!asker.isEmpty()) {
        return {
            FriendRequests(book).accept(asker),
            QCoreApplication::translate("Befriend", "They had asked you already, so you are friends now.")};
    }
    return {performAction(book, ActionName::AddFriends, {{JsonKey::UserId, said}}),
            QCoreApplication::translate("Befriend", "The friend request was sent.")};
}
