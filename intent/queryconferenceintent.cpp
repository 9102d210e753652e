// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencecardinterface.h"
#include "contactutils.h"
#include "defaultlog.h"
#include "replytable.h"
#include "slotreader.h"
#include "wire/resultcodes.h"

namespace {

using Detail = ContactQueryConferenceDetail;
using Say = ReplyRow<Detail>;

bool foundAny(const Detail &detail)
{
    return !detail.conferences.isEmpty();
}

constexpr ReplyTable<Detail> Outcomes = {
    Say(ResultCode::Success, u"以下是您查询的视频会议:").when(foundAny).thenUnannouncedCard(Query_List),
    Say(ResultCode::Success, u"抱歉，未查询到视频会议。"),
    Say(ResultCode::ConferenceNotFound, u"抱歉，未查询到视频会议。"),
};

} // namespace

int QueryConferenceIntent::handleQueryConference(const CloudIntent &intent)
{
    const CloudSlot *datetime = SlotReader::first(intent, SlotName::Datetime);
    if (datetime == nullptr) {
        qCWarning(defaultLog) << "Query Conference must contain slot: " << SlotName::Datetime;
    }
    const QString timeText = datetime == nullptr ? QString() : SlotReader::text(*datetime);
    qint64 queryStartMsecs = 0;
    const QString params = ContactUtils::queryParamInit(timeText, queryStartMsecs);
    return ConferenceCardInterface::instance()->QueryVideoConference(params, queryStartMsecs,
                                                                     m_detail.conferences);
}

int QueryConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    return Replies::answer(code, Outcomes, m_detail, intent, *getReply());
}
