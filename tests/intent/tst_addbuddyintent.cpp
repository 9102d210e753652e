// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "addbuddyintent.h"

#include "handlertest.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[{'name':'account','value':'zhang'}]";

class Replaced : public AddBuddyIntent
{
public:
    using AddBuddyIntent::AddBuddyIntent;
    int handleAddBuddy(const CloudIntent & /*intent*/) override { return 77; }
};

} // namespace

class TestAddBuddyIntent : public HandlerTest
{
    Q_OBJECT

public:
    TestAddBuddyIntent() : HandlerTest({make<AddBuddyIntent>, make<Replaced>, "Add Friends", UsualSlots}) {}

protected:
    [[nodiscard]] QVector<Outcome> outcomes() const override;
    [[nodiscard]] QVector<Request> requests() const override;

private Q_SLOTS:
    void withoutTheSlotNothingIsSent();
};

QVector<HandlerTest::Outcome> TestAddBuddyIntent::outcomes() const
{
    return {
        {"sent", answers("{'ret':'OK'}"), texts(0, "已成功发送好友申请。")},
        {"already a friend", answers("{'ret':'Is Your Friend'}"), texts(-16009, "您已经添加过该好友。")},
        {"too many friends", answers("{'ret':'Exceed Friend Limit'}"),
         texts(-16010, "抱歉，您的好友已超过最大限制。")},
        {"account not found", answers("{'ret':'Not Found'}"), texts(-16011, "抱歉，没有找到该联系人。")},
        {"oneself", answers("{'ret':'Is Yourself'}"), texts(-16018, "抱歉，无法添加自己为好友。")},
        {"no conference", answers("{'ret':'No Conference'}"), untouched()},
    };
}

QVector<HandlerTest::Request> TestAddBuddyIntent::requests() const
{
    return {
        {"as it was said", UsualSlots, R"({"userId":"zhang"})"},
        {"the normal form goes before what was said",
         "[{'name':'account','value':'zhang three','normValue':'zhang3'}]", R"({"userId":"zhang3"})"},
        {"the first account counts", "[{'name':'account','value':'a'},{'name':'account','value':'b'}]",
         R"({"userId":"a"})"},
    };
}

void TestAddBuddyIntent::withoutTheSlotNothingIsSent()
{
    compareMissingSlot("[{'name':'password','value':'1'}]", "intent/addbuddyintent.cpp",
                       "Add Buddy must contain slot:  account",
                       "virtual int AddBuddyIntent::handleAddBuddy(const CloudIntent&)");
}

QTEST_GUILESS_MAIN(TestAddBuddyIntent)

#include "tst_addbuddyintent.moc"
