// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "joinmyconferenceintent.h"

#include "replytable.h"

namespace {

const QVector<ReplyRow<ContactQueryConferenceDetail>> &replies()
{
    static const QVector<ReplyRow<ContactQueryConferenceDetail>> rows{
        {ResultCode::Success, nullptr, QStringLiteral("好的，您已成功加入会议。"), nullptr, TextOnly},
        {ResultCode::ConferenceNotFound, nullptr, QStringLiteral("抱歉，未查询到视频会议。"), nullptr,
         TextOnly},
        // The application answers so with the conferences that could be meant.
        {ResultCode::TimeOverlap, nullptr, QStringLiteral("以下是您要参与的视频会议:"), nullptr,
         cardAfterText(JoinMy_List)},
        {ResultCode::InOtherConference, nullptr, QStringLiteral("正在会议中。"), nullptr, ThenConferenceList},
        {ResultCode::InvalidPasscode, nullptr, QStringLiteral("请输入密码:"), nullptr, TextOnly},
    };
    return rows;
}

} // namespace

JoinMyConferenceIntent::JoinMyConferenceIntent(QObject *parent) : QObject(parent) {}

int JoinMyConferenceIntent::action(const CloudIntent &intent)
{
    return handleJoinMyConference(intent);
}

int JoinMyConferenceIntent::handleJoinMyConference(const CloudIntent & /*intent*/)
{
    return ConferenceCardInterface::instance()->JoinMyVideoConference(m_detail.conferences);
}

int JoinMyConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    ReplyTable::answer(code, replies(), m_detail, intent, *this);
    return code;
}
