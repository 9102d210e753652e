// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "handlertest.h"

namespace {

const char UsualSlots[] = "[{'name':'account','value':'zhang'}]";

HANDLER_WITH_OTHER_WORKER(AddBuddyIntent, handleAddBuddy)

HandlerTest::Subject subject()
{
    auto subject = HandlerTest::subjectOf<AddBuddyIntent, OtherWorker>("Add Friends", UsualSlots);
    subject.outcomes = {
        {"sent", answers("{'ret':'OK'}"), texts(0, "已成功发送好友申请。")},
        {"already a friend", answers("{'ret':'Is Your Friend'}"), texts(-16009, "您已经添加过该好友。")},
        {"too many friends", answers("{'ret':'Exceed Friend Limit'}"),
         texts(-16010, "抱歉，您的好友已超过最大限制。")},
        {"account not found", answers("{'ret':'Not Found'}"), texts(-16011, "抱歉，没有找到该联系人。")},
        {"oneself", answers("{'ret':'Is Yourself'}"), texts(-16018, "抱歉，无法添加自己为好友。")},
        {"no conference", answers("{'ret':'No Conference'}"), untouched()},
    };
    subject.requests = {
        {"as it was said", UsualSlots, R"({"userId":"zhang"})"},
        {"the normal form goes before what was said",
         "[{'name':'account','value':'zhang three','normValue':'zhang3'}]", R"({"userId":"zhang3"})"},
        {"the first account counts", "[{'name':'account','value':'a'},{'name':'account','value':'b'}]",
         R"({"userId":"a"})"},
    };
    subject.requiredSlot = {"[{'name':'password','value':'1'}]", "intent/addbuddyintent.cpp",
                            "Add Buddy must contain slot:  account",
                            "virtual int AddBuddyIntent::handleAddBuddy(const CloudIntent&)"};
    return subject;
}

} // namespace

HANDLER_TEST_MAIN(subject())
