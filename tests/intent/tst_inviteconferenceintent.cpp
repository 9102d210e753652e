// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inviteconferenceintent.h"

#include "conferencerecords.h"
#include "handlerrun.h"
#include "logcapture.h"
#include "signalactiontype.h"
#include "sourcerecords.h"

#include <QTest>

namespace {

const char Somebody[] = "[{'name':'name','value':'张三'}]";

ContactInviteMemberDetail recordOf(const Announcement &card)
{
    return card.payload.value<ContactInviteMemberDetail>();
}

} // namespace

class TestInviteConferenceIntent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.reset(new LogCapture(LogCapture::Unexpected::Passes)); }
    void cleanup() { m_log.reset(); }

    void eachOutcomeHasItsReply_data();
    void eachOutcomeHasItsReply();
    void eachOtherCodeLeavesTheReply_data();
    void eachOtherCodeLeavesTheReply();
    void requestHoldsTheMembers_data();
    void requestHoldsTheMembers();
    void withoutANameNothingIsSent();
    void cardCarriesTheRecord();
    void someNotFoundIsLogged();
    void subclassReplacesTheWorker();

private:
    std::unique_ptr<LogCapture> m_log;
};

void TestInviteConferenceIntent::eachOutcomeHasItsReply_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<Expected>("expected");
    const auto row = [](const char *name, const Script &script, const Expected &expected) {
        QTest::newRow(name) << script << expected;
    };

    row("invited", answers("{'ret':'OK'}"), texts(0, "好的，已为您发出邀请。"));
    row("everyone was found", answers("{'ret':'Return','users':[{'name':'张三','status':'OK'}]}"),
        texts(0, "好的，已为您发出邀请。"));
    row("nobody found", answers("{'ret':'Not Found'}"), texts(-16002, "抱歉，没有找到该联系人。"));
    row("nobody of those named found",
        answers("{'ret':'Return','users':[{'name':'甲','status':'Not Found'}]}"),
        texts(-16002, "抱歉，没有找到该联系人。"));
    row("a name of several people",
        answers("{'ret':'Return','users':[{'name':'张三','status':'Duplicate','duplicate_list':[]}]}"),
        cardAfter(-16003, "您需要邀请以下哪位好友:", Invite_Duplicate));
    row("a name of several people and one not found",
        answers("{'ret':'Return','users':[{'name':'张三','status':'Duplicate'},{'name':'甲','status':'Not "
                "Found'}]}"),
        cardAfter(-16003, "未找到甲，您需要邀请以下哪位好友:", Invite_Duplicate));
    row("a name of several people and two not found",
        answers("{'ret':'Return','users':[{'name':'甲','status':'Not "
                "Found'},{'name':'张三','status':'Duplicate'},"
                "{'name':'乙','status':'Not Found'}]}"),
        cardAfter(-16003, "未找到甲、乙，您需要邀请以下哪位好友:", Invite_Duplicate));
    row("some found",
        answers("{'ret':'Return','users':[{'name':'张三','status':'OK'},{'name':'甲','status':'Not Found'},"
                "{'name':'李四','status':'OK'},{'name':'乙','status':'Not Found'}]}"),
        texts(-16004, "好的，已为您发起和张三、李四的视频会议，未找到甲、乙。"));
    row("no conference runs", answers("{'ret':'Conference Not Start'}"),
        texts(-16005, "抱歉，您没有正在开始的视频会议。"));
    row("limit, one more fits",
        answers("{'ret':'Exceed Members Limit','can_invite_num':1,'not_join_list':[]}"),
        cardAfter(-16006, "抱歉，您还可以邀请[k1]1位成员。", Invite_ExceedLimit));
    row("limit, twelve more fit", answers("{'ret':'Exceed Members Limit','can_invite_num':12}"),
        cardAfter(-16006, "抱歉，您还可以邀请[k1]12位成员。", Invite_ExceedLimit));
    row("limit, nobody fits", answers("{'ret':'Exceed Members Limit','can_invite_num':0}"),
        texts(-16006, "抱歉，会议人数已达上限。"));
    row("limit, fewer than nobody fits", answers("{'ret':'Exceed Members Limit','can_invite_num':-1}"),
        texts(-16006, "抱歉，会议人数已达上限。"));
    row("not logged in", answers("{'ret':'User Not Login'}"), texts(-16017, "已为您打开联系人。"));
    row("timed out", callFails(-16020), texts(-16020, "抱歉，请求响应超时。"));
    row("the call failed, first code", callFails(-1), texts(-1, "已尝试执行，但操作失败，请稍后重试。"));
    row("the call failed, last code", callFails(-9999), texts(-9999, "已尝试执行，但操作失败，请稍后重试。"));
    row("in another conference", answers("{'ret':'In Other Conference'}"), untouched());
    row("too frequent", answers("{'ret':'Conference Create Too Frequently'}"), untouched());
    row("malformed answer", answers(""), untouched());
    row("unknown outcome word", answers("{'ret':'Perhaps'}"), untouched());
}

void TestInviteConferenceIntent::eachOutcomeHasItsReply()
{
    QFETCH(const Script, script);
    QFETCH(const Expected, expected);
    compareRun(runHandler(new InviteConferenceIntent(nullptr), intentWith(Somebody), script), expected);
}

void TestInviteConferenceIntent::eachOtherCodeLeavesTheReply_data()
{
    addCodesWithoutReply({0, -16002, -16003, -16004, -16005, -16006, -16017, -16020});
}

void TestInviteConferenceIntent::eachOtherCodeLeavesTheReply()
{
    QFETCH(const int, code);
    compareRun(replyOf(new InviteConferenceIntent(nullptr), code), untouched());
}

void TestInviteConferenceIntent::requestHoldsTheMembers_data()
{
    QTest::addColumn<QString>("slotArray");
    QTest::addColumn<QString>("parameters");
    const auto row = [](const char *name, const char *slotArray, const char *parameters) {
        QTest::newRow(name) << QString::fromUtf8(slotArray) << QString::fromUtf8(parameters);
    };
    row("one", Somebody, R"({"members":[{"name":"张三","userId":""}]})");
    row("two in the order said",
        "[{'name':'name','value':'李四'},{'name':'open','value':'拉'},{'name':'name','value':'张三'}]",
        R"({"members":[{"name":"李四","userId":""},{"name":"张三","userId":""}]})");
    row("the normal form goes before what was said", "[{'name':'name','value':'老张','normValue':'张三'}]",
        R"({"members":[{"name":"张三","userId":""}]})");
    row("repeated and empty names are left out",
        "[{'name':'name','value':'a'},{'name':'name','value':''},{'name':'name','value':'a'}]",
        R"({"members":[{"name":"a","userId":""}]})");
}

void TestInviteConferenceIntent::requestHoldsTheMembers()
{
    QFETCH(const QString, slotArray);
    QFETCH(const QString, parameters);
    const HandlerRun run = runHandler(new InviteConferenceIntent(nullptr),
                                      intentWith(slotArray.toUtf8().constData()), answers("{'ret':'OK'}"));
    QCOMPARE(run.requests.size(), 1);
    QCOMPARE(run.requests.first().action, QStringLiteral("Invite Members"));
    QCOMPARE(run.requests.first().parameters, parameters);
}

void TestInviteConferenceIntent::withoutANameNothingIsSent()
{
    const HandlerRun run = runHandler(new InviteConferenceIntent(nullptr),
                                      intentWith("[{'name':'open','value':'拉'}]"), answers("{'ret':'OK'}"));
    compareRun(run, texts(-102, "已尝试执行，但操作失败，请稍后重试。"));
    QVERIFY(run.requests.isEmpty());
    compareRecords(
        *m_log, "intent/inviteconferenceintent.cpp",
        {{QtCriticalMsg, QStringLiteral("Invite Conference must contain slot:  name"),
          QStringLiteral("virtual int InviteConferenceIntent::handleInviteConference(const CloudIntent&)")}});
}

void TestInviteConferenceIntent::cardCarriesTheRecord()
{
    const HandlerRun doubtful =
        runHandler(new InviteConferenceIntent(nullptr), intentWith(Somebody),
                   answers("{'ret':'Return','users':[{'name':'张三','status':'Duplicate','duplicate_list':[{'"
                           "name':'张三','userId':'u1'}]}]}"));
    QCOMPARE(doubtful.cards.size(), 1);
    QCOMPARE(recordOf(doubtful.cards.first()).duplicateUsers.first().users.first().userId,
             QStringLiteral("u1"));

    const HandlerRun full =
        runHandler(new InviteConferenceIntent(nullptr), intentWith(Somebody),
                   answers("{'ret':'Exceed Members "
                           "Limit','can_invite_num':2,'not_join_list':[{'name':'李四','status':'OK'}]}"));
    QCOMPARE(full.cards.size(), 1);
    QCOMPARE(recordOf(full.cards.first()).canInviteNum, 2);
    QCOMPARE(recordOf(full.cards.first()).normalUsers.first().name, QStringLiteral("李四"));
}

void TestInviteConferenceIntent::someNotFoundIsLogged()
{
    runHandler(
        new InviteConferenceIntent(nullptr), intentWith(Somebody),
        answers(
            "{'ret':'Return','users':[{'name':'张三','status':'OK'},{'name':'甲','status':'Not Found'}]}"));
    compareRecords(
        *m_log, "intent/inviteconferenceintent.cpp",
        {{QtInfoMsg, QStringLiteral("strNormalUsers \"张三\" strNotExistUsers \"甲\""),
          QStringLiteral("virtual int InviteConferenceIntent::handleReply(int, const CloudIntent&)")}});
}

void TestInviteConferenceIntent::subclassReplacesTheWorker()
{
    class Replaced : public InviteConferenceIntent
    {
    public:
        int handleInviteConference(const CloudIntent & /*intent*/) override { return 77; }
    };
    Replaced handler;
    QCOMPARE(static_cast<IBusinessIntent &>(handler).action(intentWith()), 77);
}

QTEST_GUILESS_MAIN(TestInviteConferenceIntent)

#include "tst_inviteconferenceintent.moc"
