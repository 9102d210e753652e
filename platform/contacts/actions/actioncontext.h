// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conferencerepository.h"
#include "core/peoplerepository.h"
#include "core/sessionrepository.h"

#include "book/windowfocus.h"

#include <functional>

/// The context of one action: everything happens at @p nowMsecs, for @p user, inside one transaction.
struct ActionContext
{
    PeopleRepository &people;
    ConferenceRepository &conferences;
    SessionRepository &session;
    qint64 nowMsecs;
    Person user; ///< who is logged in; empty in actions that need nobody
    std::function<void(WindowFocus)> openWindow;
};
