// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "createconferenceintent.h"

#include "contactutils.h"
#include "memberphrases.h"
#include "replytable.h"
#include "request/requesttexts.h"
#include "slotreader.h"

#include <QDateTime>
#include <QDebug>
#include <QThread>

namespace {

using Detail = ContactCreatedConferenceDetail;

bool isScheduled(const Detail &detail)
{
    return detail.isSchedule;
}

bool isScheduledAndListed(const Detail &detail)
{
    return detail.isSchedule && !detail.conferences.isEmpty();
}

bool isImmediate(const Detail &detail)
{
    return !detail.isSchedule;
}

bool isListed(const Detail &detail)
{
    return !detail.conferences.isEmpty();
}

/// With a single name that nobody has, nothing was created; with more, the conference was, without them.
bool missesSeveral(const Detail &detail)
{
    return detail.inviteDetail.notExistUsers.size() >= 2;
}

bool missesSeveralScheduled(const Detail &detail)
{
    return missesSeveral(detail) && detail.isSchedule;
}

QString verbOf(const CloudIntent &intent)
{
    return SlotReader::firstText(intent, SlotName::Open, QStringLiteral("发起"));
}

QString missingNames(const Detail &detail)
{
    return ContactUtils::vectorToString(detail.inviteDetail.notExistUsers);
}

QStringList verb(const Detail & /*detail*/, const CloudIntent &intent)
{
    return {verbOf(intent)};
}

QStringList missing(const Detail &detail, const CloudIntent & /*intent*/)
{
    return {missingNames(detail)};
}

QStringList verbAndMissing(const Detail &detail, const CloudIntent &intent)
{
    return {verbOf(intent), missingNames(detail)};
}

QStringList foundAndMissing(const Detail &detail, const CloudIntent & /*intent*/)
{
    return {MemberPhrases::joinedNames(detail.inviteDetail.normalUsers), missingNames(detail)};
}

QStringList choicePrompt(const Detail &detail, const CloudIntent & /*intent*/)
{
    return {MemberPhrases::choicePrompt(detail.inviteDetail.notExistUsers)};
}

const QVector<ReplyRow<Detail>> &replies()
{
    using namespace ResultCode;
    // Of the rows of one code the first whose condition holds is taken, so the narrow ones come first.
    static const QVector<ReplyRow<Detail>> rows{
        {Success, isImmediate, QStringLiteral("好的，现在为您%1视频会议。"), verb, TextOnly},
        {Success, isScheduledAndListed, QStringLiteral("好的，为您预约如下。"), nullptr,
         cardBeforeText(Create_Success)},
        {Success, nullptr, QStringLiteral("好的，已成功为您预约。"), nullptr, TextOnly},

        {NobodyFound, missesSeveralScheduled, QStringLiteral("已为您预约视频会议，未找到%1。"), missing,
         cardBeforeText(Create_Success)},
        {NobodyFound, missesSeveral, QStringLiteral("已为您%1视频会议，未找到%2。"), verbAndMissing,
         TextOnly},
        {NobodyFound, isScheduled, QStringLiteral("抱歉，没有找到该联系人。"), nullptr, TextOnly},
        {NobodyFound, nullptr, QStringLiteral("抱歉,无法为您%1视频会议。"), verb, TextOnly},

        {DuplicateNames, nullptr, QStringLiteral("%1"), choicePrompt, cardAfterText(Create_Duplicate)},

        {SomeNotFound, isScheduledAndListed, QStringLiteral("好的，已为您预约和%1的视频会议，未找到%2。"),
         foundAndMissing, cardBeforeText(Create_Success)},
        {SomeNotFound, nullptr, MemberPhrases::startedWithSome(), foundAndMissing, TextOnly},

        {MembersLimit, isScheduled, QStringLiteral("已为您预约视频会议，会议人数已达上限。"), nullptr,
         TextOnly},
        {MembersLimit, nullptr, QStringLiteral("已为您%1视频会议，会议人数已达上限。"), verb, TextOnly},

        {TimeOverlap, isListed, QStringLiteral("您已有重复时间会议。"), nullptr,
         cardAfterText(Create_TimeOverlap)},
        {TimeOverlap, nullptr, QStringLiteral("您已有重复时间会议。"), nullptr, TextOnly},

        {PastTime, nullptr, QStringLiteral("抱歉，无法为您预约过去的视频会议。"), nullptr, TextOnly},
        {InOtherConference, nullptr, QStringLiteral("正在会议中。"), nullptr, ThenConferenceList},
        {TooFrequent, nullptr, QStringLiteral("抱歉，操作太频繁，请稍候重试。"), nullptr, TextOnly},
    };
    return rows;
}

} // namespace

CreateConferenceIntent::CreateConferenceIntent(QObject *parent) : QObject(parent) {}

int CreateConferenceIntent::action(const CloudIntent &intent)
{
    return handleCreateVideoMeeting(intent);
}

int CreateConferenceIntent::handleCreateVideoMeeting(const CloudIntent &intent)
{
    qDebug() << "handleCreateVideoMeeting" << QThread::currentThreadId();

    const CloudSlot *datetime = SlotReader::first(intent, SlotName::Datetime);
    const QVector<QString> names = SlotReader::allTexts(intent, SlotName::Name);
    // Neither is needed: without people and time it is a conference of the user alone, now.
    if (datetime == nullptr) {
        qWarning() << "Create Conference not contain slot: " << SlotName::Datetime;
    }
    if (names.isEmpty()) {
        qWarning() << "Create Conference not contain slot: " << SlotName::Name;
    }

    bool isSchedule = false;
    qint64 startMsecs = 0;
    const QString timeText = datetime == nullptr ? QString() : SlotReader::text(*datetime);
    if (!ContactUtils::scheduleTimeMsecsInit(timeText, isSchedule, startMsecs)) {
        qCritical() << "Invalid Schedule Conference time ...";
        return ResultCode::PastTime;
    }

    const bool startsLater = isSchedule && startMsecs > 0;
    if (startsLater) {
        qInfo() << "startTime:" << QDateTime::fromMSecsSinceEpoch(startMsecs);
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
        qInfo() << "strNormalUsers" << MemberPhrases::joinedNames(m_detail.inviteDetail.normalUsers)
                << "strNotExistUsers" << missingNames(m_detail);
    }
    ReplyTable::answer(code, replies(), m_detail, intent, *this);
    return code;
}
