// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inviteconferenceintent.h"

#include "contactutils.h"
#include "memberphrases.h"
#include "replytable.h"
#include "slotreader.h"

#include <QDebug>

namespace {

bool someStillFit(const ContactInviteMemberDetail &detail)
{
    return detail.canInviteNum > 0;
}

QStringList choicePrompt(const ContactInviteMemberDetail &detail, const CloudIntent & /*intent*/)
{
    return {MemberPhrases::choicePrompt(detail.notExistUsers)};
}

QStringList foundAndMissing(const ContactInviteMemberDetail &detail, const CloudIntent & /*intent*/)
{
    return {MemberPhrases::joinedNames(detail.normalUsers),
            ContactUtils::vectorToString(detail.notExistUsers)};
}

QStringList remainingCount(const ContactInviteMemberDetail &detail, const CloudIntent & /*intent*/)
{
    return {QString::number(detail.canInviteNum)};
}

const QVector<ReplyRow<ContactInviteMemberDetail>> &replies()
{
    static const QVector<ReplyRow<ContactInviteMemberDetail>> rows{
        {ResultCode::Success, nullptr, QStringLiteral("好的，已为您发出邀请。"), nullptr, TextOnly},
        {ResultCode::NobodyFound, nullptr, QStringLiteral("抱歉，没有找到该联系人。"), nullptr, TextOnly},
        {ResultCode::DuplicateNames, nullptr, QStringLiteral("%1"), choicePrompt,
         cardAfterText(Invite_Duplicate)},
        {ResultCode::SomeNotFound, nullptr, MemberPhrases::startedWithSome(), foundAndMissing, TextOnly},
        {ResultCode::NoConference, nullptr, QStringLiteral("抱歉，您没有正在开始的视频会议。"), nullptr,
         TextOnly},
        // "[k1]" is part of what the host is given.
        {ResultCode::MembersLimit, someStillFit, QStringLiteral("抱歉，您还可以邀请[k1]%1位成员。"),
         remainingCount, cardAfterText(Invite_ExceedLimit)},
        {ResultCode::MembersLimit, nullptr, QStringLiteral("抱歉，会议人数已达上限。"), nullptr, TextOnly},
    };
    return rows;
}

} // namespace

InviteConferenceIntent::InviteConferenceIntent(QObject *parent) : QObject(parent) {}

int InviteConferenceIntent::action(const CloudIntent &intent)
{
    return handleInviteConference(intent);
}

int InviteConferenceIntent::handleInviteConference(const CloudIntent &intent)
{
    const QVector<QString> names = SlotReader::allTexts(intent, SlotName::Name);
    if (names.isEmpty()) {
        qCritical() << "Invite Conference must contain slot: " << SlotName::Name;
        return ResultCode::MissingSlot;
    }
    return ConferenceCardInterface::instance()->inviteVideoConference(ContactUtils::inviteParamInit(names),
                                                                      names, m_detail);
}

int InviteConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    if (code == ResultCode::SomeNotFound) {
        qInfo() << "strNormalUsers" << MemberPhrases::joinedNames(m_detail.normalUsers) << "strNotExistUsers"
                << ContactUtils::vectorToString(m_detail.notExistUsers);
    }
    ReplyTable::answer(code, replies(), m_detail, intent, *this);
    return code;
}
