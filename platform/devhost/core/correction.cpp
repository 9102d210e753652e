// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "correction.h"

#include "actionnames.h"

#include <QHash>

namespace devhost {

namespace {

QString nameOf(const QString &action)
{
    static const QHash<QString, QString> names{
        {ActionName::CreateConference, QStringLiteral("创建会议")},
        {ActionName::InviteMembers, QStringLiteral("邀请入会")},
        {ActionName::JoinConference, QStringLiteral("加入会议")},
        {ActionName::JoinMyConference, QStringLiteral("加入会议")},
        {ActionName::DeleteConference, QStringLiteral("取消会议")},
        {ActionName::UpdateConference, QStringLiteral("修改会议")},
        {ActionName::ExitConference, QStringLiteral("退出会议")},
        {ActionName::AddFriends, QStringLiteral("添加好友")},
    };
    return names.value(action, action);
}

} // namespace

void correctFormerTurns(const QStringList &actions, Reply &reply)
{
    QString told;
    for (const QString &action : actions) {
        told += QStringLiteral("更正：之前没有等到答复的“%1”其实已经完成。").arg(nameOf(action));
    }
    if (told.isEmpty()) {
        return;
    }
    reply.displayText = QString(told + reply.displayText.toString());
    reply.speechText = QString(told + reply.speechText.toString());
}

} // namespace devhost
