// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "joinconferenceintent.h"

#include "replytable.h"
#include "slotreader.h"

#include <QDebug>

namespace {

const QVector<ReplyRow<NoRecord>> &replies()
{
    static const QVector<ReplyRow<NoRecord>> rows{
        {ResultCode::Success, nullptr, QStringLiteral("好的，您已成功加入会议。"), nullptr, TextOnly},
        {ResultCode::NoConference, nullptr, QStringLiteral("会议还未开始。"), nullptr, TextOnly},
        {ResultCode::ConferenceNotFound, nullptr, QStringLiteral("抱歉，未查询到视频会议。"), nullptr,
         TextOnly},
        {ResultCode::InOtherConference, nullptr, QStringLiteral("正在会议中。"), nullptr, ThenConferenceList},
        {ResultCode::InvalidPasscode, nullptr, QStringLiteral("请输入密码:"), nullptr, TextOnly},
        {ResultCode::ParticipantsFull, nullptr, QStringLiteral("会议人数已满。"), nullptr, TextOnly},
    };
    return rows;
}

} // namespace

JoinConferenceIntent::JoinConferenceIntent(QObject *parent) : QObject(parent) {}

int JoinConferenceIntent::action(const CloudIntent &intent)
{
    return handleJoinVideoMeeting(intent);
}

int JoinConferenceIntent::handleJoinVideoMeeting(const CloudIntent &intent)
{
    const CloudSlot *number = SlotReader::first(intent, SlotName::Id);
    if (number == nullptr) {
        qCritical() << "Join Conference must contain slot: " << SlotName::Id;
        return ResultCode::MissingSlot;
    }
    return ConferenceCardInterface::instance()->JoinVideoConference(
        SlotReader::spokenValue(*number), SlotReader::firstText(intent, SlotName::Password));
}

int JoinConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    ReplyTable::answer(code, replies(), NoRecord(), intent, *this);
    return code;
}
