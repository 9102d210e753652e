// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "queryconferenceintent.h"

#include "conferencerecords.h"
#include "handlerrun.h"
#include "logcapture.h"
#include "signalactiontype.h"
#include "sourcerecords.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08\\\"}'}]";

} // namespace

class TestQueryConferenceIntent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.reset(new LogCapture(LogCapture::Unexpected::Passes)); }
    void cleanup() { m_log.reset(); }

    void eachOutcomeHasItsReply_data();
    void eachOutcomeHasItsReply();
    void eachOtherCodeLeavesTheReply_data();
    void eachOtherCodeLeavesTheReply();
    void requestHoldsWhatWasSaid_data();
    void requestHoldsWhatWasSaid();
    void withoutATimeItIsSentAllTheSame();
    void successWithoutAnyIsAnsweredAsNotFound();
    void cardCarriesTheRecord();
    void subclassReplacesTheWorker();

private:
    std::unique_ptr<LogCapture> m_log;
};

void TestQueryConferenceIntent::eachOutcomeHasItsReply_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<Expected>("expected");
    const auto row = [](const char *name, const Script &script, const Expected &expected) {
        QTest::newRow(name) << script << expected;
    };

    row("found one", answers("{'ret':'OK','list':[{'confId':'c1'}]}"),
        cardAddedToTexts(0, "以下是您查询的视频会议:", Query_List));
    row("found two", answers("{'ret':'OK','list':[{'confId':'c1'},{'confId':'c2'}]}"),
        cardAddedToTexts(0, "以下是您查询的视频会议:", Query_List));
    row("an empty list counts as not found", answers("{'ret':'OK','list':[]}"),
        texts(-16007, "抱歉，未查询到视频会议。"));
    row("not found", answers("{'ret':'Not Found'}"), texts(-16007, "抱歉，未查询到视频会议。"));
    row("unknown outcome word", answers("{'ret':'Perhaps'}"), untouched());
    row("malformed answer", answers("["), untouched());
    row("not logged in", answers("{'ret':'User Not Login'}"), texts(-16017, "已为您打开联系人。"));
    row("timed out", callFails(-16020), texts(-16020, "抱歉，请求响应超时。"));
    row("the call failed, first code", callFails(-1), texts(-1, "已尝试执行，但操作失败，请稍后重试。"));
    row("the call failed, last code", callFails(-9999), texts(-9999, "已尝试执行，但操作失败，请稍后重试。"));
    row("just below the failures of the call", callFails(-10000), untouched());
    row("a positive code of the call", callFails(5), untouched());
}

void TestQueryConferenceIntent::eachOutcomeHasItsReply()
{
    QFETCH(const Script, script);
    QFETCH(const Expected, expected);
    compareRun(runHandler(new QueryConferenceIntent(nullptr), intentWith(UsualSlots), script), expected);
}

void TestQueryConferenceIntent::eachOtherCodeLeavesTheReply_data()
{
    addCodesWithoutReply({0, -16007, -16017, -16020});
}

void TestQueryConferenceIntent::eachOtherCodeLeavesTheReply()
{
    QFETCH(const int, code);
    compareRun(replyOf(new QueryConferenceIntent(nullptr), code), untouched());
}

void TestQueryConferenceIntent::requestHoldsWhatWasSaid_data()
{
    QTest::addColumn<QString>("slotArray");
    QTest::addColumn<QString>("parameters");
    const auto row = [](const char *name, const char *slotArray, const char *parameters) {
        QTest::newRow(name) << QString::fromUtf8(slotArray) << QString::fromUtf8(parameters);
    };

    row("a day", UsualSlots, R"({"endTime":1772985600000,"startTime":1772899200000})");
    row("a time", "[{'name':'datetime','normValue':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'}]",
        R"({"endTime":1772985600000,"startTime":1772935200000})");
    row("the first time counts",
        "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08\\\"}'},{'name':'datetime','"
        "value':'{\\\"suggestDatetime\\\":\\\"2026-03-09\\\"}'}]",
        R"({"endTime":1772985600000,"startTime":1772899200000})");
    row("no time is everything from now on", "[]", "");
}

void TestQueryConferenceIntent::requestHoldsWhatWasSaid()
{
    QFETCH(const QString, slotArray);
    QFETCH(const QString, parameters);
    const HandlerRun run = runHandler(new QueryConferenceIntent(nullptr),
                                      intentWith(slotArray.toUtf8().constData()), answers("{'ret':'OK'}"));
    QCOMPARE(run.requests.size(), 1);
    QCOMPARE(run.requests.first().action, QStringLiteral("Search Conference"));
    QCOMPARE(run.requests.first().parameters, parameters);
}

void TestQueryConferenceIntent::withoutATimeItIsSentAllTheSame()
{
    const HandlerRun run =
        runHandler(new QueryConferenceIntent(nullptr), intentWith(), answers("{'ret':'Not Found'}"));
    compareRun(run, texts(-16007, "抱歉，未查询到视频会议。"));
    QCOMPARE(run.requests.size(), 1);
    compareRecords(
        *m_log, "intent/queryconferenceintent.cpp",
        {{QtWarningMsg, QStringLiteral("Query Conference must contain slot:  datetime"),
          QStringLiteral("virtual int QueryConferenceIntent::handleQueryConference(const CloudIntent&)")}});
}

/// The analyser never says so, another worker may.
void TestQueryConferenceIntent::successWithoutAnyIsAnsweredAsNotFound()
{
    compareRun(replyOf(new QueryConferenceIntent(nullptr), 0), texts(0, "抱歉，未查询到视频会议。"));
}

void TestQueryConferenceIntent::cardCarriesTheRecord()
{
    const HandlerRun run = runHandler(new QueryConferenceIntent(nullptr), intentWith(UsualSlots),
                                      answers("{'ret':'OK','list':[{'confId':'c1'},{'confId':'c2'}]}"));
    QCOMPARE(run.cards.size(), 1);
    const auto record = run.cards.first().payload.value<ContactQueryConferenceDetail>();
    QCOMPARE(record.conferences.size(), 2);
    QCOMPARE(record.conferences.first().confId, QStringLiteral("c1"));
}

void TestQueryConferenceIntent::subclassReplacesTheWorker()
{
    class Replaced : public QueryConferenceIntent
    {
    public:
        int handleQueryConference(const CloudIntent & /*intent*/) override { return 77; }
    };
    Replaced handler;
    QCOMPARE(static_cast<IBusinessIntent &>(handler).action(intentWith()), 77);
}

QTEST_GUILESS_MAIN(TestQueryConferenceIntent)

#include "tst_queryconferenceintent.moc"
