// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "handlertest.h"
#include "signalactiontype.h"

namespace {

HANDLER_WITH_OTHER_WORKER(JoinMyConferenceIntent, handleJoinMyConference)

HandlerTest::Subject subject()
{
    auto subject = HandlerTest::subjectOf<JoinMyConferenceIntent, OtherWorker>("Join My Conference");
    subject.outcomes = {
        {"joined", answers("{'ret':'OK'}"), texts(0, "好的，您已成功加入会议。")},
        {"not found", answers("{'ret':'Not Found'}"), texts(-16007, "抱歉，未查询到视频会议。")},
        {"several to choose from", answers("{'ret':'Time Overlap','list':[{'confId':'c1'},{'confId':'c2'}]}"),
         cardAfter(-16008, "以下是您要参与的视频会议:", JoinMy_List, "c1 c2")},
        {"in another conference", answers("{'ret':'In Other Conference'}"),
         textsThenList(-16013, "正在会议中。")},
        {"wrong password", answers("{'ret':'Invalid Passcode'}"), texts(-16014, "请输入密码:")},
        {"not started", answers("{'ret':'Conference Not Start'}"), untouched()},
        {"full", answers("{'ret':'Participant Out Limit'}"), untouched()},
    };
    subject.requests = {
        {"nothing", "[]", ""},
        {"slots are not read", "[{'name':'id','value':'4001'}]", ""},
    };
    return subject;
}

} // namespace

HANDLER_TEST_MAIN(subject())
