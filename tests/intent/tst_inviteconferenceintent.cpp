// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencerecords.h"
#include "handlertest.h"
#include "signalactiontype.h"
#include "sourcerecords.h"

#include <QTest>

namespace {

const char Somebody[] = "[{'name':'name','value':'张三'}]";

ContactInviteMemberDetail recordOf(const Announcement &card)
{
    return card.payload.value<ContactInviteMemberDetail>();
}

HANDLER_WITH_OTHER_WORKER(InviteConferenceIntent, handleInviteConference)

HandlerTest::Subject subject()
{
    auto subject = HandlerTest::subjectOf<InviteConferenceIntent, OtherWorker>("Invite Members", Somebody);
    subject.outcomes = {
        {"invited", answers("{'ret':'OK'}"), texts(0, "好的，已为您发出邀请。")},
        {"everyone was found", answers("{'ret':'Return','users':[{'name':'张三','status':'OK'}]}"),
         texts(0, "好的，已为您发出邀请。")},
        {"nobody found", answers("{'ret':'Not Found'}"), texts(-16002, "抱歉，没有找到该联系人。")},
        {"nobody of those named found",
         answers("{'ret':'Return','users':[{'name':'甲','status':'Not Found'}]}"),
         texts(-16002, "抱歉，没有找到该联系人。")},
        {"a name of several people",
         answers("{'ret':'Return','users':[{'name':'张三','status':'Duplicate','duplicate_list':[]}]}"),
         cardAfter(-16003, "您需要邀请以下哪位好友:", Invite_Duplicate)},
        {"a name of several people and one not found",
         answers("{'ret':'Return','users':[{'name':'张三','status':'Duplicate'},{'name':'甲','status':'Not "
                 "Found'}]}"),
         cardAfter(-16003, "未找到甲，您需要邀请以下哪位好友:", Invite_Duplicate)},
        {"a name of several people and two not found",
         answers("{'ret':'Return','users':[{'name':'甲','status':'Not "
                 "Found'},{'name':'张三','status':'Duplicate'},"
                 "{'name':'乙','status':'Not Found'}]}"),
         cardAfter(-16003, "未找到甲、乙，您需要邀请以下哪位好友:", Invite_Duplicate)},
        {"some found",
         answers("{'ret':'Return','users':[{'name':'张三','status':'OK'},{'name':'甲','status':'Not Found'},"
                 "{'name':'李四','status':'OK'},{'name':'乙','status':'Not Found'}]}"),
         texts(-16004, "好的，已为您发起和张三、李四的视频会议，未找到甲、乙。")},
        {"no conference runs", answers("{'ret':'Conference Not Start'}"),
         texts(-16005, "抱歉，您没有正在开始的视频会议。")},
        {"limit, one more fits",
         answers("{'ret':'Exceed Members Limit','can_invite_num':1,'not_join_list':[]}"),
         cardAfter(-16006, "抱歉，您还可以邀请[k1]1位成员。", Invite_ExceedLimit)},
        {"limit, twelve more fit", answers("{'ret':'Exceed Members Limit','can_invite_num':12}"),
         cardAfter(-16006, "抱歉，您还可以邀请[k1]12位成员。", Invite_ExceedLimit)},
        {"limit, nobody fits", answers("{'ret':'Exceed Members Limit','can_invite_num':0}"),
         texts(-16006, "抱歉，会议人数已达上限。")},
        {"limit, fewer than nobody fits", answers("{'ret':'Exceed Members Limit','can_invite_num':-1}"),
         texts(-16006, "抱歉，会议人数已达上限。")},
        {"in another conference", answers("{'ret':'In Other Conference'}"), untouched()},
        {"too frequent", answers("{'ret':'Conference Create Too Frequently'}"), untouched()},
        {"unknown outcome word", answers("{'ret':'Perhaps'}"), untouched()},
    };
    subject.requests = {
        {"one", Somebody, R"({"members":[{"name":"张三","userId":""}]})"},
        {"two in the order said",
         "[{'name':'name','value':'李四'},{'name':'open','value':'拉'},{'name':'name','value':'张三'}]",
         R"({"members":[{"name":"李四","userId":""},{"name":"张三","userId":""}]})"},
        {"the normal form goes before what was said", "[{'name':'name','value':'老张','normValue':'张三'}]",
         R"({"members":[{"name":"张三","userId":""}]})"},
        {"repeated and empty names are left out",
         "[{'name':'name','value':'a'},{'name':'name','value':''},{'name':'name','value':'a'}]",
         R"({"members":[{"name":"a","userId":""}]})"},
    };
    subject.requiredSlot = {"[{'name':'open','value':'拉'}]", "intent/inviteconferenceintent.cpp",
                            "Invite Conference must contain slot:  name",
                            "virtual int InviteConferenceIntent::handleInviteConference(const CloudIntent&)"};
    return subject;
}

} // namespace

class TestInviteConferenceIntent : public HandlerTestOf<subject>
{
    Q_OBJECT

private Q_SLOTS:
    void cardCarriesTheRecord();
    void someNotFoundIsLogged();
};

void TestInviteConferenceIntent::cardCarriesTheRecord()
{
    const HandlerRun doubtful =
        runWith(answers("{'ret':'Return','users':[{'name':'张三','status':'Duplicate','duplicate_list':[{'"
                        "name':'张三','userId':'u1'}]}]}"));
    QCOMPARE(doubtful.cards.size(), 1);
    QCOMPARE(recordOf(doubtful.cards.first()).duplicateUsers.first().users.first().userId,
             QStringLiteral("u1"));

    const HandlerRun full =
        runWith(answers("{'ret':'Exceed Members "
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
        log(), "intent/inviteconferenceintent.cpp",
        {{QtInfoMsg, QStringLiteral("strNormalUsers \"张三\" strNotExistUsers \"甲\""),
          QStringLiteral("virtual int InviteConferenceIntent::handleReply(int, const CloudIntent&)")}});
}

QTEST_GUILESS_MAIN(TestInviteConferenceIntent)

#include "tst_inviteconferenceintent.moc"
