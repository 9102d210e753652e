// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "contactutils.h"

#include <QStringView>

class CloudIntent;

/// Phrases about found and missing people, shared by creating and inviting.
namespace MemberPhrases {

/// Joins the names that were asked for with an ideographic comma.
QString joinedNames(const QVector<UserInfo> &users);

/// Asks which of several people of one name is meant, after listing the names that were not found.
QString choicePrompt(const QVector<QString> &notExistUsers);

inline const ContactInviteMemberDetail &inviteDetailOf(const ContactInviteMemberDetail &detail)
{
    return detail;
}

inline const ContactInviteMemberDetail &inviteDetailOf(const ContactCreatedConferenceDetail &detail)
{
    return detail.inviteDetail;
}

// Arguments of reply rows, for the records of both handlers.

template <typename Detail>
QString foundNames(const Detail &detail, const CloudIntent & /*intent*/)
{
    return joinedNames(inviteDetailOf(detail).normalUsers);
}

template <typename Detail>
QString missingNames(const Detail &detail, const CloudIntent & /*intent*/)
{
    return ContactUtils::vectorToString(inviteDetailOf(detail).notExistUsers);
}

template <typename Detail>
QString choicePrompt(const Detail &detail, const CloudIntent & /*intent*/)
{
    return choicePrompt(inviteDetailOf(detail).notExistUsers);
}

/// %1: the people found, %2: the names not found. Inviting says it too, although the conference has started.
constexpr QStringView StartedWithSome = u"好的，已为您发起和%1的视频会议，未找到%2。";

} // namespace MemberPhrases
