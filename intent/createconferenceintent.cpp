// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencecardinterface.h"
#include "contactutils.h"
#include "defaultlog.h"
#include "memberphrases.h"
#include "replytable.h"
#include "request/requesttexts.h"
#include "slotreader.h"
#include "wire/resultcodes.h"

#include <QDateTime>
#include <QThread>

namespace {

using MemberPhrases::choicePrompt;
using MemberPhrases::foundNames;
using MemberPhrases::missingNames;
using Detail = ContactCreatedConferenceDetail;
using Say = ReplyRow<Detail>;

bool isBooked(const Detail &detail)
{
    return detail.isSchedule;
}

bool isImmediate(const Detail &detail)
{
    return !detail.isSchedule;
}

bool isListed(const Detail &detail)
{
    return !detail.conferences.isEmpty();
}

bool isBookedAndListed(const Detail &detail)
{
    return isBooked(detail) && isListed(detail);
}

/// If the only name asked for is not found, nothing is created; if several are, the conference is.
bool missesSeveral(const Detail &detail)
{
    return detail.inviteDetail.notExistUsers.size() >= 2;
}

bool isBookedWithoutSeveral(const Detail &detail)
{
    return isBooked(detail) && missesSeveral(detail);
}

QString verb(const Detail & /*detail*/, const CloudIntent &intent)
{
    return SlotReader::firstText(intent, SlotName::Open, QStringLiteral("发起"));
}

// The first row of a code whose condition holds wins, so the narrow ones come first.
constexpr ReplyTable<Detail> Outcomes = {
    Say(ResultCode::Success, u"好的，现在为您%1视频会议。").with(verb).when(isImmediate),
    Say(ResultCode::Success, u"好的，为您预约如下。").when(isBookedAndListed).afterCard(Create_Success),
    Say(ResultCode::Success, u"好的，已成功为您预约。"),

    Say(ResultCode::NobodyFound, u"已为您预约视频会议，未找到%1。")
        .with(missingNames)
        .when(isBookedWithoutSeveral)
        .afterCard(Create_Success),
    Say(ResultCode::NobodyFound, u"已为您%1视频会议，未找到%2。")
        .with(verb, missingNames)
        .when(missesSeveral),
    Say(ResultCode::NobodyFound, u"抱歉，没有找到该联系人。").when(isBooked),
    Say(ResultCode::NobodyFound, u"抱歉,无法为您%1视频会议。").with(verb),

    Say(ResultCode::DuplicateNames, u"%1").with(choicePrompt).thenCard(Create_Duplicate),

    Say(ResultCode::SomeNotFound, u"好的，已为您预约和%1的视频会议，未找到%2。")
        .with(foundNames, missingNames)
        .when(isBookedAndListed)
        .afterCard(Create_Success),
    Say(ResultCode::SomeNotFound, MemberPhrases::StartedWithSome).with(foundNames, missingNames),

    Say(ResultCode::MembersLimit, u"已为您预约视频会议，会议人数已达上限。").when(isBooked),
    Say(ResultCode::MembersLimit, u"已为您%1视频会议，会议人数已达上限。").with(verb),

    Say(ResultCode::TimeOverlap, u"您已有重复时间会议。").when(isListed).thenCard(Create_TimeOverlap),
    Say(ResultCode::TimeOverlap, u"您已有重复时间会议。"),

    Say(ResultCode::PastTime, u"抱歉，无法为您预约过去的视频会议。"),
    Say(ResultCode::InOtherConference, u"正在会议中。").thenConferenceList(),
    Say(ResultCode::TooFrequent, u"抱歉，操作太频繁，请稍候重试。"),
};

} // namespace

int CreateConferenceIntent::handleCreateVideoMeeting(const CloudIntent &intent)
{
    qCDebug(defaultLog) << "handleCreateVideoMeeting" << QThread::currentThreadId();

    const CloudSlot *datetime = SlotReader::first(intent, SlotName::Datetime);
    const QVector<QString> names = SlotReader::allTexts(intent, SlotName::Name);
    // Both are optional: without people and a time, the user starts a conference alone, now.
    if (datetime == nullptr) {
        qCWarning(defaultLog) << "Create Conference not contain slot: " << SlotName::Datetime;
    }
    if (names.isEmpty()) {
        qCWarning(defaultLog) << "Create Conference not contain slot: " << SlotName::Name;
    }

    bool isSchedule = false;
    qint64 startMsecs = 0;
    const QString timeText = datetime == nullptr ? QString() : SlotReader::text(*datetime);
    if (!ContactUtils::scheduleTimeMsecsInit(timeText, isSchedule, startMsecs)) {
        qCCritical(defaultLog) << "Invalid Schedule Conference time ...";
        return ResultCode::PastTime;
    }

    const bool startsLater = isSchedule && startMsecs > 0;
    if (startsLater) {
        qCInfo(defaultLog) << "startTime:" << QDateTime::fromMSecsSinceEpoch(startMsecs);
    }
    const QJsonArray members = RequestText::membersNamed(names);
    const QString request = startsLater ? RequestText::createConference(members, startMsecs)
                                        : RequestText::createConference(members);
    return ConferenceCardInterface::instance()->createVideoConference(request, names, isSchedule, startMsecs,
                                                                      m_detail);
}

int CreateConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    if (code == ResultCode::SomeNotFound) {
        qCInfo(defaultLog) << "strNormalUsers" << foundNames(m_detail, intent) << "strNotExistUsers"
                           << missingNames(m_detail, intent);
    }
    return Replies::answer(code, Outcomes, m_detail, intent, *getReply());
}
