// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/outcometext.h"

#include "core/outcome.h"

#include <QHash>

QString outcomeText(const QString &word)
{
    static const QHash<QString, QString> texts{
        {Outcome::Ok, QStringLiteral("好的。")},
        {Outcome::Return, QStringLiteral("没有找到，或有同名联系人。")},
        {Outcome::NotFound, QStringLiteral("没有找到。")},
        {Outcome::NoConference, QStringLiteral("没有正在进行的会议。")},
        {Outcome::ConferenceNotStarted, QStringLiteral("会议还未开始。")},
        {Outcome::TimeOverlap, QStringLiteral("与其他会议时间重复。")},
        {Outcome::IsYourFriend, QStringLiteral("已经添加过该好友。")},
        {Outcome::ExceedFriendLimit, QStringLiteral("好友已超过最大限制。")},
        {Outcome::IsYourself, QStringLiteral("无法添加自己为好友。")},
        {Outcome::InOtherConference, QStringLiteral("正在其他会议中。")},
        {Outcome::InvalidPasscode, QStringLiteral("密码不正确，请输入密码后再加入。")},
        {Outcome::NotLoggedIn, QStringLiteral("请先登录。")},
        {Outcome::TooFrequent, QStringLiteral("操作太频繁，请稍候重试。")},
        {Outcome::ParticipantsFull, QStringLiteral("会议人数已满。")},
        {Outcome::UpdateFailed, QStringLiteral("修改失败。")},
    };
    return texts.value(word, QStringLiteral("操作失败。"));
}
