// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"
#include "meaning/reading.h"
#include "words/contactindex.h"

namespace understanding {

/// True if @p text says of anybody that they are not to come, or cannot: 乐乐不来了.
bool tellsAbsence(const QString &text);

enum class PeopleChange {
    None,
    Unclear, ///< somebody is to be left out, but who is to come remains open
    Done
};

/// Changes who is to come to the conference that @p outcome still asks about: 换小凯吧; 李娜就算了;
/// 不是李娜， 是李楠. Puts what else @p reading says into @p rest. Changes nothing unless it returns
/// PeopleChange::Done.
PeopleChange changePeople(const Reading &reading, const ContactIndex &contacts, Outcome &outcome,
                          QString &rest);

} // namespace understanding
