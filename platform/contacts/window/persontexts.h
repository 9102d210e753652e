// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

enum class PersonColumn { Name, Account, Relation, Kind };

/// What a list of people shows of @p person, safe to be shown.
QString personText(const Person &person, PersonColumn column);

/// Whether the name, the remark or the account contains @p text, whatever the case of its letters.
bool isFoundBy(const Person &person, const QString &text);
