// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencecardinterface.h"
#include "contactutils.h"
#include "defaultlog.h"
#include "memberphrases.h"
#include "replytable.h"
#include "slotreader.h"
#include "wire/resultcodes.h"

namespace {

using MemberPhrases::choicePrompt;
using MemberPhrases::foundNames;
using MemberPhrases::missingNames;
using Detail = ContactInviteMemberDetail;
using Say = ReplyRow<Detail>;

bool someStillFit(const Detail &detail)
{
    return detail.canInviteNum > 0;
}

QString remainingCount(const Detail &detail, const CloudIntent & /*intent*/)
{
    return QString::number(detail.canInviteNum);
}

constexpr ReplyTable<Detail> Outcomes = {
    Say(ResultCode::Success, u"好的，已为您发出邀请。"),
    Say(ResultCode::NobodyFound, u"抱歉，没有找到该联系人。"),
    Say(ResultCode::DuplicateNames, u"%1").with(choicePrompt).thenCard(Invite_Duplicate),
    Say(ResultCode::SomeNotFound, MemberPhrases::StartedWithSome).with(foundNames, missingNames),
    Say(ResultCode::NoConference, u"抱歉，您没有正在开始的视频会议。"),
    // "[k1]" is part of the text that the host expects.
    Say(ResultCode::MembersLimit, u"抱歉，您还可以邀请[k1]%1位成员。")
        .with(remainingCount)
        .when(someStillFit)
        .thenCard(Invite_ExceedLimit),
    Say(ResultCode::MembersLimit, u"抱歉，会议人数已达上限。"),
};

} // namespace

int InviteConferenceIntent::handleInviteConference(const CloudIntent &intent)
{
    const QVector<QString> names = SlotReader::allTexts(intent, SlotName::Name);
    if (names.isEmpty()) {
        qCCritical(defaultLog) << "Invite Conference must contain slot: " << SlotName::Name;
        return ResultCode::MissingSlot;
    }
    return ConferenceCardInterface::instance()->inviteVideoConference(ContactUtils::inviteParamInit(names),
                                                                      names, m_detail);
}

int InviteConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    if (code == ResultCode::SomeNotFound) {
        qCInfo(defaultLog) << "strNormalUsers" << foundNames(m_detail, intent) << "strNotExistUsers"
                           << missingNames(m_detail, intent);
    }
    return Replies::answer(code, Outcomes, m_detail, intent, *getReply());
}
