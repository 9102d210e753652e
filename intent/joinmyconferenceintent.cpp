// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencecardinterface.h"
#include "replytable.h"
#include "wire/resultcodes.h"

namespace {

using Detail = ContactQueryConferenceDetail;
using Say = ReplyRow<Detail>;

constexpr ReplyTable<Detail> Outcomes = {
    Say(ResultCode::Success, u"好的，您已成功加入会议。"),
    Say(ResultCode::ConferenceNotFound, u"抱歉，未查询到视频会议。"),
    // The answer lists the conferences that may be meant.
    Say(ResultCode::TimeOverlap, u"以下是您要参与的视频会议:").thenCard(JoinMy_List),
    Say(ResultCode::InOtherConference, u"正在会议中。").thenConferenceList(),
    Say(ResultCode::InvalidPasscode, u"请输入密码:"),
};

} // namespace

int JoinMyConferenceIntent::handleJoinMyConference(const CloudIntent & /*intent*/)
{
    return ConferenceCardInterface::instance()->JoinMyVideoConference(m_detail.conferences);
}

int JoinMyConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    return Replies::answer(code, Outcomes, m_detail, intent, *getReply());
}
