// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peoplehint.h"

#include "core/displaytext.h"

#include <QCoreApplication>

QString peopleHint(const PeopleView &view)
{
    if (!view.isLoggedIn) {
        return QCoreApplication::translate(
            "PeopleHint", "Nobody is logged in.\nChoose an account above to see its contacts.");
    }
    if (view.isReading) {
        return QCoreApplication::translate("PeopleHint", "Searching…");
    }
    if (!view.text.trimmed().isEmpty()) {
        return QCoreApplication::translate("PeopleHint",
                                           "“%1” was not found.\nPress Esc to clear the search.")
            .arg(cleanDisplayText(view.text));
    }
    switch (view.scope) {
    case PeopleScope::Friends:
        return QCoreApplication::translate("PeopleHint",
                                           "There are no friends yet.\nSend a request with “Add Friend”.");
    case PeopleScope::Asked:
        return QCoreApplication::translate("PeopleHint", "No friend request waits for its answer.");
    case PeopleScope::Everybody:
        break;
    }
    return QCoreApplication::translate("PeopleHint",
                                       "There are no contacts yet.\nSend a request with “Add Friend”.");
}
