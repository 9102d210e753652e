// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actiontable.h"

#include "actions/actions.h"

#include <QVector>

#include <algorithm>

const Action *findAction(const QString &name)
{
    static const QVector<Action> actions{
        {QStringLiteral("Create Conference"), createConference, ActionAccess::LoggedInUser},
        {QStringLiteral("Invite Members"), inviteMembers, ActionAccess::LoggedInUser},
        {QStringLiteral("Join Conference"), joinConference, ActionAccess::LoggedInUser},
        {QStringLiteral("Join My Conference"), joinMyConference, ActionAccess::LoggedInUser},
        {QStringLiteral("Search Conference"), searchConference, ActionAccess::LoggedInUser},
        {QStringLiteral("Is Conference Host"), isConferenceHost, ActionAccess::LoggedInUser},
        {QStringLiteral("Delete Conference"), deleteConference, ActionAccess::LoggedInUser},
        {QStringLiteral("Add Friends"), addFriends, ActionAccess::LoggedInUser},
        {QStringLiteral("Exit Conference"), exitConference, ActionAccess::LoggedInUser},
        {QStringLiteral("Open Conference List"), openConferenceList, ActionAccess::Anybody},
        {QStringLiteral("Update Conference"), updateConference, ActionAccess::LoggedInUser},
    };
    const auto found = std::find_if(actions.cbegin(), actions.cend(),
                                    [&name](const Action &action) { return action.name == name; });
    return found == actions.cend() ? nullptr : &*found;
}
