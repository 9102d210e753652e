// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "handlertest.h"

namespace {

HANDLER_WITH_OTHER_WORKER(CloseConferenceIntent, handleCloseConference)

HandlerTest::Subject subject()
{
    auto subject = HandlerTest::subjectOf<CloseConferenceIntent, OtherWorker>("Exit Conference");
    subject.outcomes = {
        {"left", answers("{'ret':'OK'}"), texts(0, "好的。")},
        {"left, in the other word", answers("{'ret':'Success'}"), texts(0, "好的。")},
        {"none runs", answers("{'ret':'No Conference'}"), texts(-16005, "您没有正在开始的视频会议。")},
        {"not found", answers("{'ret':'Not Found'}"), untouched()},
        {"true", answers("{'ret':'True'}"), untouched()},
    };
    subject.requests = {
        {"nothing", "[]", ""},
        {"slots are not read", "[{'name':'id','value':'4001'},{'name':'name','value':'a'}]", ""},
    };
    return subject;
}

} // namespace

HANDLER_TEST_MAIN(subject())
