// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencecardinterface.h"
#include "defaultlog.h"
#include "replytable.h"
#include "slotreader.h"
#include "wire/resultcodes.h"

namespace {

using Say = ReplyRow<>;

constexpr ReplyTable<> Outcomes = {
    Say(ResultCode::Success, u"已成功发送好友申请。"),
    Say(ResultCode::AlreadyFriend, u"您已经添加过该好友。"),
    Say(ResultCode::FriendLimit, u"抱歉，您的好友已超过最大限制。"),
    Say(ResultCode::NotFound, u"抱歉，没有找到该联系人。"),
    Say(ResultCode::Oneself, u"抱歉，无法添加自己为好友。"),
};

} // namespace

int AddBuddyIntent::handleAddBuddy(const CloudIntent &intent)
{
    const CloudSlot *account = SlotReader::first(intent, SlotName::Account);
    if (account == nullptr) {
        qCCritical(defaultLog) << "Add Buddy must contain slot: " << SlotName::Account;
        return ResultCode::MissingSlot;
    }
    return ConferenceCardInterface::instance()->addBuddy(SlotReader::text(*account));
}

int AddBuddyIntent::handleReply(int code, const CloudIntent &intent)
{
    return Replies::answer(code, Outcomes, intent, *getReply());
}
