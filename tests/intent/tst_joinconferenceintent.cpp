// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "joinconferenceintent.h"

#include "handlerrun.h"
#include "logcapture.h"
#include "sourcerecords.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[{'name':'id','value':'4001'}]";

} // namespace

class TestJoinConferenceIntent : public QObject
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
    void withoutTheSlotNothingIsSent();
    void subclassReplacesTheWorker();

private:
    std::unique_ptr<LogCapture> m_log;
};

void TestJoinConferenceIntent::eachOutcomeHasItsReply_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<Expected>("expected");
    const auto row = [](const char *name, const Script &script, const Expected &expected) {
        QTest::newRow(name) << script << expected;
    };

    row("joined", answers("{'ret':'OK'}"), texts(0, "好的，您已成功加入会议。"));
    row("not started", answers("{'ret':'Conference Not Start'}"), texts(-16005, "会议还未开始。"));
    row("unknown outcome word counts as not started", answers("{'ret':'Perhaps'}"),
        texts(-16005, "会议还未开始。"));
    row("not found", answers("{'ret':'Not Found'}"), texts(-16007, "抱歉，未查询到视频会议。"));
    row("in another conference", answers("{'ret':'In Other Conference'}"),
        textsThenList(-16013, "正在会议中。"));
    row("wrong password", answers("{'ret':'Invalid Passcode'}"), texts(-16014, "请输入密码:"));
    row("full", answers("{'ret':'Participant Out Limit'}"), texts(-16021, "会议人数已满。"));
    row("several conferences", answers("{'ret':'Time Overlap'}"), untouched());
    row("malformed answer", answers("nonsense"), untouched());
    row("not logged in", answers("{'ret':'User Not Login'}"), texts(-16017, "已为您打开联系人。"));
    row("timed out", callFails(-16020), texts(-16020, "抱歉，请求响应超时。"));
    row("the call failed, first code", callFails(-1), texts(-1, "已尝试执行，但操作失败，请稍后重试。"));
    row("the call failed, last code", callFails(-9999), texts(-9999, "已尝试执行，但操作失败，请稍后重试。"));
    row("just below the failures of the call", callFails(-10000), untouched());
    row("a positive code of the call", callFails(5), untouched());
}

void TestJoinConferenceIntent::eachOutcomeHasItsReply()
{
    QFETCH(const Script, script);
    QFETCH(const Expected, expected);
    compareRun(runHandler(new JoinConferenceIntent(nullptr), intentWith(UsualSlots), script), expected);
}

void TestJoinConferenceIntent::eachOtherCodeLeavesTheReply_data()
{
    addCodesWithoutReply({0, -16005, -16007, -16013, -16014, -16017, -16020, -16021});
}

void TestJoinConferenceIntent::eachOtherCodeLeavesTheReply()
{
    QFETCH(const int, code);
    compareRun(replyOf(new JoinConferenceIntent(nullptr), code), untouched());
}

void TestJoinConferenceIntent::requestHoldsWhatWasSaid_data()
{
    QTest::addColumn<QString>("slotArray");
    QTest::addColumn<QString>("parameters");
    const auto row = [](const char *name, const char *slotArray, const char *parameters) {
        QTest::newRow(name) << QString::fromUtf8(slotArray) << QString::fromUtf8(parameters);
    };

    row("number alone", UsualSlots, R"({"conferenceId":"4001","password":""})");
    row("number and password", "[{'name':'password','value':'12'},{'name':'id','value':'4001'}]",
        R"({"conferenceId":"4001","password":"12"})");
    row("the password's normal form goes before what was said",
        "[{'name':'id','value':'4001'},{'name':'password','value':'one two','normValue':'12'}]",
        R"({"conferenceId":"4001","password":"12"})");
    row("the number is taken as it was said", "[{'name':'id','value':'4001','normValue':'9'}]",
        R"({"conferenceId":"4001","password":""})");
    row("the first number and the first password count",
        "[{'name':'id','value':'1'},{'name':'id','value':'2'},{'name':'password','value':'3'},{'name':'"
        "password','value':'4'}]",
        R"({"conferenceId":"1","password":"3"})");
}

void TestJoinConferenceIntent::requestHoldsWhatWasSaid()
{
    QFETCH(const QString, slotArray);
    QFETCH(const QString, parameters);
    const HandlerRun run = runHandler(new JoinConferenceIntent(nullptr),
                                      intentWith(slotArray.toUtf8().constData()), answers("{'ret':'OK'}"));
    QCOMPARE(run.requests.size(), 1);
    QCOMPARE(run.requests.first().action, QStringLiteral("Join Conference"));
    QCOMPARE(run.requests.first().parameters, parameters);
}

void TestJoinConferenceIntent::withoutTheSlotNothingIsSent()
{
    const HandlerRun run =
        runHandler(new JoinConferenceIntent(nullptr), intentWith("[{'name':'password','value':'1'}]"),
                   answers("{'ret':'OK'}"));
    compareRun(run, texts(-102, "已尝试执行，但操作失败，请稍后重试。"));
    QVERIFY(run.requests.isEmpty());
    compareRecords(
        *m_log, "intent/joinconferenceintent.cpp",
        {{QtCriticalMsg, QStringLiteral("Join Conference must contain slot:  id"),
          QStringLiteral("virtual int JoinConferenceIntent::handleJoinVideoMeeting(const CloudIntent&)")}});
}

void TestJoinConferenceIntent::subclassReplacesTheWorker()
{
    class Replaced : public JoinConferenceIntent
    {
    public:
        int handleJoinVideoMeeting(const CloudIntent & /*intent*/) override { return 77; }
    };
    Replaced handler;
    QCOMPARE(static_cast<IBusinessIntent &>(handler).action(intentWith()), 77);
}

QTEST_GUILESS_MAIN(TestJoinConferenceIntent)

#include "tst_joinconferenceintent.moc"
