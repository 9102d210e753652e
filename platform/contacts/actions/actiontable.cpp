// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actiontable.h"

#include "actions/actions.h"

#include "actionnames.h"

#include <QVector>

#include <algorithm>

const Action *findAction(const QString &name)
{
    static const QVector<Action> actions{
        {ActionName::CreateConference, createConference, ActionAccess::LoggedInUser},
        {ActionName::InviteMembers, inviteMembers, ActionAccess::LoggedInUser},
        {ActionName::JoinConference, joinConference, ActionAccess::LoggedInUser},
        {ActionName::JoinMyConference, joinMyConference, ActionAccess::LoggedInUser},
        {ActionName::SearchConference, searchConference, ActionAccess::LoggedInUser},
        {ActionName::IsConferenceHost, isConferenceHost, ActionAccess::LoggedInUser},
        {ActionName::DeleteConference, deleteConference, ActionAccess::LoggedInUser},
        {ActionName::AddFriends, addFriends, ActionAccess::LoggedInUser},
        {ActionName::ExitConference, exitConference, ActionAccess::LoggedInUser},
        {ActionName::OpenConferenceList, openConferenceList, ActionAccess::Anybody},
        {ActionName::UpdateConference, updateConference, ActionAccess::LoggedInUser},
    };
    const auto found = std::find_if(actions.cbegin(), actions.cend(),
                                    [&name](const Action &action) { return action.name == name; });
    return found == actions.cend() ? nullptr : &*found;
}
