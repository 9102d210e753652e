// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "closeconferenceintent.h"

#include "replytable.h"

namespace {

const QVector<ReplyRow<NoRecord>> &replies()
{
    static const QVector<ReplyRow<NoRecord>> rows{
        {ResultCode::Success, nullptr, QStringLiteral("好的。"), nullptr, TextOnly},
        // Not the words that inviting uses for the same outcome.
        {ResultCode::NoConference, nullptr, QStringLiteral("您没有正在开始的视频会议。"), nullptr, TextOnly},
    };
    return rows;
}

} // namespace

CloseConferenceIntent::CloseConferenceIntent(QObject *parent) : QObject(parent) {}

int CloseConferenceIntent::action(const CloudIntent &intent)
{
    return handleCloseConference(intent);
}

int CloseConferenceIntent::handleCloseConference(const CloudIntent & /*intent*/)
{
    return ConferenceCardInterface::instance()->closeVideoConference();
}

int CloseConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    ReplyTable::answer(code, replies(), NoRecord(), intent, *this);
    return code;
}
