// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "joinconferenceintent.h"

#include "handlertest.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[{'name':'id','value':'4001'}]";

class Replaced : public JoinConferenceIntent
{
public:
    using JoinConferenceIntent::JoinConferenceIntent;
    int handleJoinVideoMeeting(const CloudIntent & /*intent*/) override { return 77; }
};

} // namespace

class TestJoinConferenceIntent : public HandlerTest
{
    Q_OBJECT

public:
    TestJoinConferenceIntent()
        : HandlerTest({make<JoinConferenceIntent>, make<Replaced>, "Join Conference", UsualSlots})
    {
    }

protected:
    [[nodiscard]] QVector<Outcome> outcomes() const override;
    [[nodiscard]] QVector<Request> requests() const override;

private Q_SLOTS:
    void withoutTheSlotNothingIsSent();
};

QVector<HandlerTest::Outcome> TestJoinConferenceIntent::outcomes() const
{
    return {
        {"joined", answers("{'ret':'OK'}"), texts(0, "好的，您已成功加入会议。")},
        {"not started", answers("{'ret':'Conference Not Start'}"), texts(-16005, "会议还未开始。")},
        {"unknown outcome word counts as not started", answers("{'ret':'Perhaps'}"),
         texts(-16005, "会议还未开始。")},
        {"not found", answers("{'ret':'Not Found'}"), texts(-16007, "抱歉，未查询到视频会议。")},
        {"in another conference", answers("{'ret':'In Other Conference'}"),
         textsThenList(-16013, "正在会议中。")},
        {"wrong password", answers("{'ret':'Invalid Passcode'}"), texts(-16014, "请输入密码:")},
        {"full", answers("{'ret':'Participant Out Limit'}"), texts(-16021, "会议人数已满。")},
        {"several conferences", answers("{'ret':'Time Overlap'}"), untouched()},
    };
}

QVector<HandlerTest::Request> TestJoinConferenceIntent::requests() const
{
    return {
        {"number alone", UsualSlots, R"({"conferenceId":"4001","password":""})"},
        {"number and password", "[{'name':'password','value':'12'},{'name':'id','value':'4001'}]",
         R"({"conferenceId":"4001","password":"12"})"},
        {"the password's normal form goes before what was said",
         "[{'name':'id','value':'4001'},{'name':'password','value':'one two','normValue':'12'}]",
         R"({"conferenceId":"4001","password":"12"})"},
        {"the number is taken as it was said", "[{'name':'id','value':'4001','normValue':'9'}]",
         R"({"conferenceId":"4001","password":""})"},
        {"the first number and the first password count",
         "[{'name':'id','value':'1'},{'name':'id','value':'2'},{'name':'password','value':'3'},{'name':'"
         "password','value':'4'}]",
         R"({"conferenceId":"1","password":"3"})"},
    };
}

void TestJoinConferenceIntent::withoutTheSlotNothingIsSent()
{
    compareMissingSlot("[{'name':'password','value':'1'}]", "intent/joinconferenceintent.cpp",
                       "Join Conference must contain slot:  id",
                       "virtual int JoinConferenceIntent::handleJoinVideoMeeting(const CloudIntent&)");
}

QTEST_GUILESS_MAIN(TestJoinConferenceIntent)

#include "tst_joinconferenceintent.moc"
