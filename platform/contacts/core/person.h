// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// The limits on an account's conferences. The numbers are stored.
enum class AccountKind { Free = 0, Paying = 1 };

/// The relation of one person to another.
enum class Friendship {
    None,
    Requested, ///< asked, has not answered yet
    Friend,
};

/// A person with an account.
struct Person
{
    QString userId;
    QString account; ///< what one says to add the person as a friend
    QString name;
    QString remarkName; ///< what the contacts' owner calls the person; empty outside contacts
    AccountKind kind = AccountKind::Free;
    Friendship friendship = Friendship::None; ///< to the contacts' owner

    QString shownName() const { return remarkName.isEmpty() ? name : remarkName; }
};
