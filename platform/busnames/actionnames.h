// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLatin1String>

/// The actions that the contacts application performs when it is asked to.
namespace ActionName {
const QLatin1String CreateConference("Create Conference");
const QLatin1String InviteMembers("Invite Members");
const QLatin1String JoinConference("Join Conference");
const QLatin1String JoinMyConference("Join My Conference");
const QLatin1String SearchConference("Search Conference");
const QLatin1String IsConferenceHost("Is Conference Host");
const QLatin1String DeleteConference("Delete Conference");
const QLatin1String AddFriends("Add Friends");
const QLatin1String ExitConference("Exit Conference");
const QLatin1String OpenConferenceList("Open Conference List");
const QLatin1String UpdateConference("Update Conference");
} // namespace ActionName
