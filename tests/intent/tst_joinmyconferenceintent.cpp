// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "joinmyconferenceintent.h"

#include "conferencerecords.h"
#include "handlerrun.h"
#include "logcapture.h"
#include "signalactiontype.h"
#include "sourcerecords.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[]";

} // namespace

class TestJoinMyConferenceIntent : public QObject
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
    void cardCarriesTheRecord();
    void subclassReplacesTheWorker();

private:
    std::unique_ptr<LogCapture> m_log;
};

void TestJoinMyConferenceIntent::eachOutcomeHasItsReply_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<Expected>("expected");
    const auto row = [](const char *name, const Script &script, const Expected &expected) {
        QTest::newRow(name) << script << expected;
    };

    row("joined", answers("{'ret':'OK'}"), texts(0, "好的，您已成功加入会议。"));
    row("not found", answers("{'ret':'Not Found'}"), texts(-16007, "抱歉，未查询到视频会议。"));
    row("several to choose from", answers("{'ret':'Time Overlap','list':[{'confId':'c1'},{'confId':'c2'}]}"),
        cardAfter(-16008, "以下是您要参与的视频会议:", JoinMy_List));
    row("in another conference", answers("{'ret':'In Other Conference'}"),
        textsThenList(-16013, "正在会议中。"));
    row("wrong password", answers("{'ret':'Invalid Passcode'}"), texts(-16014, "请输入密码:"));
    row("not started", answers("{'ret':'Conference Not Start'}"), untouched());
    row("full", answers("{'ret':'Participant Out Limit'}"), untouched());
    row("malformed answer", answers(""), untouched());
    row("not logged in", answers("{'ret':'User Not Login'}"), texts(-16017, "已为您打开联系人。"));
    row("timed out", callFails(-16020), texts(-16020, "抱歉，请求响应超时。"));
    row("the call failed, first code", callFails(-1), texts(-1, "已尝试执行，但操作失败，请稍后重试。"));
    row("the call failed, last code", callFails(-9999), texts(-9999, "已尝试执行，但操作失败，请稍后重试。"));
    row("just below the failures of the call", callFails(-10000), untouched());
    row("a positive code of the call", callFails(5), untouched());
}

void TestJoinMyConferenceIntent::eachOutcomeHasItsReply()
{
    QFETCH(const Script, script);
    QFETCH(const Expected, expected);
    compareRun(runHandler(new JoinMyConferenceIntent(nullptr), intentWith(UsualSlots), script), expected);
}

void TestJoinMyConferenceIntent::eachOtherCodeLeavesTheReply_data()
{
    addCodesWithoutReply({0, -16007, -16008, -16013, -16014, -16017, -16020});
}

void TestJoinMyConferenceIntent::eachOtherCodeLeavesTheReply()
{
    QFETCH(const int, code);
    compareRun(replyOf(new JoinMyConferenceIntent(nullptr), code), untouched());
}

void TestJoinMyConferenceIntent::requestHoldsWhatWasSaid_data()
{
    QTest::addColumn<QString>("slotArray");
    QTest::addColumn<QString>("parameters");
    const auto row = [](const char *name, const char *slotArray, const char *parameters) {
        QTest::newRow(name) << QString::fromUtf8(slotArray) << QString::fromUtf8(parameters);
    };

    row("nothing", UsualSlots, "");
    row("slots are not read", "[{'name':'id','value':'4001'}]", "");
}

void TestJoinMyConferenceIntent::requestHoldsWhatWasSaid()
{
    QFETCH(const QString, slotArray);
    QFETCH(const QString, parameters);
    const HandlerRun run = runHandler(new JoinMyConferenceIntent(nullptr),
                                      intentWith(slotArray.toUtf8().constData()), answers("{'ret':'OK'}"));
    QCOMPARE(run.requests.size(), 1);
    QCOMPARE(run.requests.first().action, QStringLiteral("Join My Conference"));
    QCOMPARE(run.requests.first().parameters, parameters);
}

void TestJoinMyConferenceIntent::cardCarriesTheRecord()
{
    const HandlerRun run =
        runHandler(new JoinMyConferenceIntent(nullptr), intentWith(),
                   answers("{'ret':'Time Overlap','list':[{'confId':'c1'},{'confId':'c2'}]}"));
    QCOMPARE(run.cards.size(), 1);
    const auto record = run.cards.first().payload.value<ContactQueryConferenceDetail>();
    QCOMPARE(record.conferences.size(), 2);
    QCOMPARE(record.conferences.last().confId, QStringLiteral("c2"));
}

void TestJoinMyConferenceIntent::subclassReplacesTheWorker()
{
    class Replaced : public JoinMyConferenceIntent
    {
    public:
        int handleJoinMyConference(const CloudIntent & /*intent*/) override { return 77; }
    };
    Replaced handler;
    QCOMPARE(static_cast<IBusinessIntent &>(handler).action(intentWith()), 77);
}

QTEST_GUILESS_MAIN(TestJoinMyConferenceIntent)

#include "tst_joinmyconferenceintent.moc"
