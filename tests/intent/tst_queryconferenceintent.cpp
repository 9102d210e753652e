// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "handlertest.h"
#include "signalactiontype.h"
#include "sourcerecords.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08\\\"}'}]";

HANDLER_WITH_OTHER_WORKER(QueryConferenceIntent, handleQueryConference)

HandlerTest::Subject subject()
{
    auto subject =
        HandlerTest::subjectOf<QueryConferenceIntent, OtherWorker>("Search Conference", UsualSlots);
    subject.outcomes = {
        {"found one", answers("{'ret':'OK','list':[{'confId':'c1'}]}"),
         cardAddedToTexts(0, "以下是您查询的视频会议:", Query_List, "c1")},
        {"found two", answers("{'ret':'OK','list':[{'confId':'c1'},{'confId':'c2'}]}"),
         cardAddedToTexts(0, "以下是您查询的视频会议:", Query_List, "c1 c2")},
        {"an empty list counts as not found", answers("{'ret':'OK','list':[]}"),
         texts(-16007, "抱歉，未查询到视频会议。")},
        {"not found", answers("{'ret':'Not Found'}"), texts(-16007, "抱歉，未查询到视频会议。")},
        {"unknown outcome word", answers("{'ret':'Perhaps'}"), untouched()},
    };
    subject.requests = {
        {"a day", UsualSlots, R"({"endTime":1772985600000,"startTime":1772899200000})"},
        {"a time",
         "[{'name':'datetime','normValue':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'}]",
         R"({"endTime":1772985600000,"startTime":1772935200000})"},
        {"the first time counts",
         "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08\\\"}'},{'name':'datetime','"
         "value':'{\\\"suggestDatetime\\\":\\\"2026-03-09\\\"}'}]",
         R"({"endTime":1772985600000,"startTime":1772899200000})"},
        {"no time is everything from now on", "[]", ""},
    };
    return subject;
}

} // namespace

class TestQueryConferenceIntent : public HandlerTestOf<subject>
{
    Q_OBJECT

private Q_SLOTS:
    void withoutATimeItIsSentAllTheSame();
    void successWithoutAnyIsAnsweredAsNotFound();
};

void TestQueryConferenceIntent::withoutATimeItIsSentAllTheSame()
{
    const HandlerRun run = runWith(answers("{'ret':'Not Found'}"), "[]");
    compareRun(run, texts(-16007, "抱歉，未查询到视频会议。"));
    QCOMPARE(run.requests.size(), 1);
    compareRecords(
        log(), "intent/queryconferenceintent.cpp",
        {{QtWarningMsg, QStringLiteral("Query Conference must contain slot:  datetime"),
          QStringLiteral("virtual int QueryConferenceIntent::handleQueryConference(const CloudIntent&)")}});
}

/// The analyser never returns this, but another worker may.
void TestQueryConferenceIntent::successWithoutAnyIsAnsweredAsNotFound()
{
    compareRun(replyOf(new QueryConferenceIntent(nullptr), 0), texts(0, "抱歉，未查询到视频会议。"));
}

QTEST_GUILESS_MAIN(TestQueryConferenceIntent)

#include "tst_queryconferenceintent.moc"
