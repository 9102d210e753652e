// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

class ContactsBook;

/// What became of the wish to have somebody as a friend.
struct BefriendResult
{
    QString word; ///< see core/outcome.h
    QString text; ///< tells the user of a success
};

/// Accepts the request of whoever has asked the user already; asks everybody else, by the same way as the
/// assistant's requests. @p said is an account, or a name that only one person has. Never throws.
BefriendResult befriend(ContactsBook &book, const QString &said);
