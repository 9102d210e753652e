// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QLatin1String>

/// What the contacts application can be asked to do: the action names of the ability's requests.
namespace AbilityAction {
constexpr QLatin1String CreateConference("Create Conference");
constexpr QLatin1String InviteMembers("Invite Members");
constexpr QLatin1String JoinConference("Join Conference");
constexpr QLatin1String JoinMyConference("Join My Conference");
constexpr QLatin1String SearchConference("Search Conference");
constexpr QLatin1String IsConferenceHost("Is Conference Host");
constexpr QLatin1String DeleteConference("Delete Conference");
constexpr QLatin1String AddFriends("Add Friends");
constexpr QLatin1String ExitConference("Exit Conference");
constexpr QLatin1String OpenConferenceList("Open Conference List");
constexpr QLatin1String UpdateConference("Update Conference");
} // namespace AbilityAction
