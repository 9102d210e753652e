// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "addbuddyintent.h"

#include "replytable.h"
#include "slotreader.h"

#include <QDebug>

namespace {

const QVector<ReplyRow<NoRecord>> &replies()
{
    static const QVector<ReplyRow<NoRecord>> rows{
        {ResultCode::Success, nullptr, QStringLiteral("已成功发送好友申请。"), nullptr, TextOnly},
        {ResultCode::AlreadyFriend, nullptr, QStringLiteral("您已经添加过该好友。"), nullptr, TextOnly},
        {ResultCode::FriendLimit, nullptr, QStringLiteral("抱歉，您的好友已超过最大限制。"), nullptr,
         TextOnly},
        {ResultCode::NotFound, nullptr, QStringLiteral("抱歉，没有找到该联系人。"), nullptr, TextOnly},
        {ResultCode::Oneself, nullptr, QStringLiteral("抱歉，无法添加自己为好友。"), nullptr, TextOnly},
    };
    return rows;
}

} // namespace

AddBuddyIntent::AddBuddyIntent(QObject *parent) : QObject(parent) {}

int AddBuddyIntent::action(const CloudIntent &intent)
{
    return handleAddBuddy(intent);
}

int AddBuddyIntent::handleAddBuddy(const CloudIntent &intent)
{
    const CloudSlot *account = SlotReader::first(intent, SlotName::Account);
    if (account == nullptr) {
        qCritical() << "Add Buddy must contain slot: " << SlotName::Account;
        return ResultCode::MissingSlot;
    }
    return ConferenceCardInterface::instance()->addBuddy(SlotReader::text(*account));
}

int AddBuddyIntent::handleReply(int code, const CloudIntent &intent)
{
    ReplyTable::answer(code, replies(), NoRecord(), intent, *this);
    return code;
}
