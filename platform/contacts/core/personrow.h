// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"
#include "core/statement.h"

/// The person of a row that begins with the user id, the account, the name and the kind.
inline Person readPerson(const Statement &row)
{
    Person person;
    person.userId = row.text(0);
    person.account = row.text(1);
    person.name = row.text(2);
    person.kind = static_cast<AccountKind>(row.smallNumber(3));
    return person;
}
