// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "handlertest.h"

namespace {

const char UsualSlots[] = "[{'name':'id','value':'4001'}]";

HANDLER_WITH_OTHER_WORKER(JoinConferenceIntent, handleJoinVideoMeeting)

HandlerTest::Subject subject()
{
    auto subject = HandlerTest::subjectOf<JoinConferenceIntent, OtherWorker>("Join Conference", UsualSlots);
    subject.outcomes = {
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
    subject.requests = {
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
    subject.requiredSlot = {"[{'name':'password','value':'1'}]", "intent/joinconferenceintent.cpp",
                            "Join Conference must contain slot:  id",
                            "virtual int JoinConferenceIntent::handleJoinVideoMeeting(const CloudIntent&)"};
    return subject;
}

} // namespace

HANDLER_TEST_MAIN(subject())
