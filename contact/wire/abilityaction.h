// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "wire/latin1literal.h"

/// The action names of the ability's requests.
namespace AbilityAction {
constexpr QLatin1String CreateConference = "Create Conference"_latin1;
constexpr QLatin1String InviteMembers = "Invite Members"_latin1;
constexpr QLatin1String JoinConference = "Join Conference"_latin1;
constexpr QLatin1String JoinMyConference = "Join My Conference"_latin1;
constexpr QLatin1String SearchConference = "Search Conference"_latin1;
constexpr QLatin1String IsConferenceHost = "Is Conference Host"_latin1;
constexpr QLatin1String DeleteConference = "Delete Conference"_latin1;
constexpr QLatin1String AddFriends = "Add Friends"_latin1;
constexpr QLatin1String ExitConference = "Exit Conference"_latin1;
constexpr QLatin1String OpenConferenceList = "Open Conference List"_latin1;
constexpr QLatin1String UpdateConference = "Update Conference"_latin1;
} // namespace AbilityAction
