// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/confirmation.h"

#include "card/cardreplies.h"
#include "conferencecardinterface.h"
#include "request/requesttexts.h"
#include "wire/resultcodes.h"

#include <QSet>

namespace {

int sendCreation(const QVector<UserInfo> &members, qint64 startTime)
{
    const QString request = RequestText::createConference(RequestText::membersPicked(members), startTime);
    return ConferenceCardInterface::instance()->createVideoConference(request, startTime);
}

int sendInvitation(const QVector<UserInfo> &members, qint64 /*startTime*/)
{
    const QString request = RequestText::inviteMembers(RequestText::membersPicked(members));
    return ConferenceCardInterface::instance()->inviteVideoConference(request);
}

QStringList namesOf(const QVector<UserInfo> &users, Confirmation::Names said)
{
    QStringList names;
    QSet<QString> known;
    for (const UserInfo &user : users) {
        if (said == Confirmation::Names::AllSaid || !known.contains(user.name)) {
            known.insert(user.name);
            names.append(user.name);
        }
    }
    return names;
}

// The purposes differ in small ways that people rely on.
constexpr Confirmation Creation = {Confirmation::ResolvedUsers::Join,
                                   Confirmation::Names::AllSaid,
                                   Confirmation::CardAfterwards::Disabled,
                                   sendCreation,
                                   CardReplies::created,
                                   CardReplies::notCreated};
constexpr Confirmation Invitation = {Confirmation::ResolvedUsers::Join,
                                     Confirmation::Names::AllSaid,
                                     Confirmation::CardAfterwards::Enabled,
                                     sendInvitation,
                                     CardReplies::invited,
                                     CardReplies::notInvited};
constexpr Confirmation SmallerInvitation = {
    Confirmation::ResolvedUsers::StayOut,  Confirmation::Names::EachSaidOnce,
    Confirmation::CardAfterwards::Enabled, sendInvitation,
    CardReplies::invitedWithinLimit,       CardReplies::notInvited};

} // namespace

QString Confirmation::reply(const QVector<UserInfo> &members, int code) const
{
    return code == ResultCode::Success ? success(namesOf(members, names)) : failure();
}

const Confirmation &Confirmation::create()
{
    return Creation;
}

const Confirmation &Confirmation::invite()
{
    return Invitation;
}

const Confirmation &Confirmation::inviteWithinLimit()
{
    return SmallerInvitation;
}
