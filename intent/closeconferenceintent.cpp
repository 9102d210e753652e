// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencecardinterface.h"
#include "replytable.h"
#include "wire/resultcodes.h"

namespace {

using Say = ReplyRow<>;

constexpr ReplyTable<> Outcomes = {
    Say(ResultCode::Success, u"好的。"),
    // Deliberately not the words that inviting uses for the same outcome.
    Say(ResultCode::NoConference, u"您没有正在开始的视频会议。"),
};

} // namespace

int CloseConferenceIntent::handleCloseConference(const CloudIntent & /*intent*/)
{
    return ConferenceCardInterface::instance()->closeVideoConference();
}

int CloseConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    return Replies::answer(code, Outcomes, intent, *getReply());
}
