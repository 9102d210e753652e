// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencecardinterface.h"
#include "defaultlog.h"
#include "replytable.h"
#include "slotreader.h"
#include "wire/resultcodes.h"

namespace {

using Say = ReplyRow<>;

constexpr ReplyTable<> Outcomes = {
    Say(ResultCode::Success, u"好的，您已成功加入会议。"),
    Say(ResultCode::NoConference, u"会议还未开始。"),
    Say(ResultCode::ConferenceNotFound, u"抱歉，未查询到视频会议。"),
    Say(ResultCode::InOtherConference, u"正在会议中。").thenConferenceList(),
    Say(ResultCode::InvalidPasscode, u"请输入密码:"),
    Say(ResultCode::ParticipantsFull, u"会议人数已满。"),
};

} // namespace

int JoinConferenceIntent::handleJoinVideoMeeting(const CloudIntent &intent)
{
    const CloudSlot *number = SlotReader::first(intent, SlotName::Id);
    if (number == nullptr) {
        qCCritical(defaultLog) << "Join Conference must contain slot: " << SlotName::Id;
        return ResultCode::MissingSlot;
    }
    return ConferenceCardInterface::instance()->JoinVideoConference(
        SlotReader::spokenValue(*number), SlotReader::firstText(intent, SlotName::Password));
}

int JoinConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    return Replies::answer(code, Outcomes, intent, *getReply());
}
