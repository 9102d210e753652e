// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencerecords.h"
#include "handlertest.h"
#include "signalactiontype.h"
#include "sourcerecords.h"
#include "wire/resultcodes.h"

#include <QDateTime>
#include <QTest>
#include <QThread>

namespace {

// The clock stands at 2026-03-07 10:20, see CMakeLists.txt.
const char Scheduled[] =
    "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'}]";
const char VerbStart[] = "[{'name':'open','value':'开始'}]";
const char ScheduledVerbStart[] =
    "[{'name':'open','value':'开始'},"
    "{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'}]";
const qint64 ScheduledMsecs = 1772935200000; // 2026-03-08 10:00 in Shanghai

const char OneFoundTwoMissing[] = "{'ret':'Return','users':[{'name':'张三','status':'OK'},"
                                  "{'name':'甲','status':'Not Found'},{'name':'乙','status':'Not Found'}]}";
const char TwoFoundOneMissing[] =
    "{'ret':'Return','users':[{'name':'张三','status':'OK'},{'name':'李四','status':'OK'},"
    "{'name':'甲','status':'Not Found'}],'list':[]}";
const char TwoFoundOneMissingListed[] =
    "{'ret':'Return','users':[{'name':'张三','status':'OK'},{'name':'李四','status':'OK'},"
    "{'name':'甲','status':'Not Found'}],'list':[{'confId':'c1'}]}";
const char TwoMissing[] = "{'ret':'Return','list':[{'confId':'c1'}],"
                          "'users':[{'name':'甲','status':'Not Found'},{'name':'乙','status':'Not Found'}]}";
const char OneMissing[] = "{'ret':'Return','users':[{'name':'甲','status':'Not Found'}]}";
const char DuplicateOnly[] =
    "{'ret':'Return','users':[{'name':'张三','status':'Duplicate','duplicate_list':"
    "[{'name':'张三','userId':'u1','account':'a1'},{'name':'张三','userId':'u2','account':'a2'}]}]}";
const char DuplicateAndTwoMissing[] =
    "{'ret':'Return','users':[{'name':'张三','status':'Duplicate','duplicate_list':[]},"
    "{'name':'甲','status':'Not Found'},{'name':'乙','status':'Not Found'}]}";
const char NamesWithPlaceholders[] =
    "{'ret':'Return','users':[{'name':'%2','status':'OK'},{'name':'%1','status':'Not Found'}]}";

ContactCreatedConferenceDetail recordOf(const Announcement &card)
{
    return card.payload.value<ContactCreatedConferenceDetail>();
}

HANDLER_WITH_OTHER_WORKER(CreateConferenceIntent, handleCreateVideoMeeting)

HandlerTest::Subject subject()
{
    auto subject = HandlerTest::subjectOf<CreateConferenceIntent, OtherWorker>("Create Conference");
    subject.outcomes = {
        {"created at once, no verb said", answers("{'ret':'OK'}"), texts(0, "好的，现在为您发起视频会议。")},
        {"created at once, with the verb that was said", answers("{'ret':'OK'}"),
         texts(0, "好的，现在为您开始视频会议。"), VerbStart},
        {"created at once, the answer's list does not matter",
         answers("{'ret':'OK','list':[{'confId':'c1'}]}"), texts(0, "好的，现在为您发起视频会议。")},
        {"booked, and the answer shows it", answers("{'ret':'OK','list':[{'confId':'c1'}]}"),
         cardBefore(0, "好的，为您预约如下。", Create_Success, "c1"), Scheduled},
        {"booked, and the answer shows nothing", answers("{'ret':'OK','list':[]}"),
         texts(0, "好的，已成功为您预约。"), Scheduled},
        {"two names not found, booked", answers(TwoMissing),
         cardBefore(-16002, "已为您预约视频会议，未找到甲、乙。", Create_Success, "c1"), Scheduled},
        {"two names not found, booked, nothing listed",
         answers("{'ret':'Return','users':[{'name':'甲','status':'Not Found'},{'name':'乙','status':'Not "
                 "Found'}]}"),
         cardBefore(-16002, "已为您预约视频会议，未找到甲、乙。", Create_Success), Scheduled},
        {"two names not found, started", answers(TwoMissing),
         texts(-16002, "已为您开始视频会议，未找到甲、乙。"), VerbStart},
        {"two names not found, started, no verb said", answers(TwoMissing),
         texts(-16002, "已为您发起视频会议，未找到甲、乙。")},
        {"one name not found, to be booked", answers(OneMissing), texts(-16002, "抱歉，没有找到该联系人。"),
         Scheduled},
        {"one name not found, to be started", answers(OneMissing),
         texts(-16002, "抱歉,无法为您开始视频会议。"), VerbStart},
        {"nobody found and nobody named, to be booked", answers("{'ret':'Not Found'}"),
         texts(-16002, "抱歉，没有找到该联系人。"), Scheduled},
        {"nobody found and nobody named, to be started", answers("{'ret':'Not Found'}"),
         texts(-16002, "抱歉,无法为您发起视频会议。")},
        {"a name of several people", answers(DuplicateOnly),
         cardAfter(-16003, "您需要邀请以下哪位好友:", Create_Duplicate)},
        {"a name of several people, booked", answers(DuplicateOnly),
         cardAfter(-16003, "您需要邀请以下哪位好友:", Create_Duplicate), Scheduled},
        {"a name of several people and two names not found", answers(DuplicateAndTwoMissing),
         cardAfter(-16003, "未找到甲、乙，您需要邀请以下哪位好友:", Create_Duplicate)},
        {"some found, started", answers(TwoFoundOneMissing),
         texts(-16004, "好的，已为您发起和张三、李四的视频会议，未找到甲。")},
        {"some found, started whatever the verb", answers(TwoFoundOneMissingListed),
         texts(-16004, "好的，已为您发起和张三、李四的视频会议，未找到甲。"), VerbStart},
        {"some found, booked but not listed", answers(TwoFoundOneMissing),
         texts(-16004, "好的，已为您发起和张三、李四的视频会议，未找到甲。"), Scheduled},
        {"some found, booked and listed", answers(TwoFoundOneMissingListed),
         cardBefore(-16004, "好的，已为您预约和张三、李四的视频会议，未找到甲。", Create_Success, "c1"),
         Scheduled},
        {"one found, two missing", answers(OneFoundTwoMissing),
         texts(-16004, "好的，已为您发起和张三的视频会议，未找到甲、乙。")},
        {"names that look like placeholders stay as they are", answers(NamesWithPlaceholders),
         texts(-16004, "好的，已为您发起和%2的视频会议，未找到%1。")},
        {"members' limit, booked", answers("{'ret':'Exceed Members Limit'}"),
         texts(-16006, "已为您预约视频会议，会议人数已达上限。"), ScheduledVerbStart},
        {"members' limit, started", answers("{'ret':'Exceed Members Limit'}"),
         texts(-16006, "已为您开始视频会议，会议人数已达上限。"), VerbStart},
        {"members' limit, started, no verb said", answers("{'ret':'Exceed Members Limit'}"),
         texts(-16006, "已为您发起视频会议，会议人数已达上限。")},
        {"overlap that is listed", answers("{'ret':'Time Overlap','list':[{'confId':'c1'}]}"),
         cardAfter(-16008, "您已有重复时间会议。", Create_TimeOverlap, "c1"), Scheduled},
        {"overlap that is not listed", answers("{'ret':'Time Overlap','list':[]}"),
         texts(-16008, "您已有重复时间会议。"), Scheduled},
        {"a time that is past", answers("{'ret':'OK'}"), texts(-16012, "抱歉，无法为您预约过去的视频会议。"),
         "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-06\\\"}'}]"},
        {"in another conference", answers("{'ret':'In Other Conference'}"),
         textsThenList(-16013, "正在会议中。")},
        {"created too often", answers("{'ret':'Conference Create Too Frequently'}"),
         texts(-16019, "抱歉，操作太频繁，请稍候重试。")},
        {"unknown outcome word", answers("{'ret':'Perhaps'}"), untouched()},
        {"no conference", answers("{'ret':'Conference Not Start'}"), untouched()},
    };
    subject.requests = {
        {"nobody, now", "[]", R"({"members":[]})"},
        {"two people, now", "[{'name':'name','value':'张三'},{'name':'name','value':'李四'}]",
         R"({"members":[{"name":"张三","userId":""},{"name":"李四","userId":""}]})"},
        {"the normal form goes before what was said", "[{'name':'name','value':'老张','normValue':'张三'}]",
         R"({"members":[{"name":"张三","userId":""}]})"},
        {"an empty normal form counts too", "[{'name':'name','value':'老张','normValue':''}]",
         R"({"members":[{"name":"","userId":""}]})"},
        {"a repeated name once, case matters",
         "[{'name':'name','value':'a'},{'name':'name','value':'A'},{'name':'name','value':'a'}]",
         R"({"members":[{"name":"a","userId":""},{"name":"A","userId":""}]})"},
        {"nobody, tomorrow", Scheduled, R"({"members":[],"startTime":1772935200000})"},
        {"the first time counts",
         "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'},"
         "{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-09T10:00:00\\\"}'}]",
         R"({"members":[],"startTime":1772935200000})"},
        {"a time slot without text means now", "[{'name':'datetime'}]", R"({"members":[]})"},
    };
    return subject;
}

} // namespace

class TestCreateConferenceIntent : public HandlerTestOf<subject>
{
    Q_OBJECT

private Q_SLOTS:
    void pastOrUnreadableTimeSendsNothing_data();
    void pastOrUnreadableTimeSendsNothing();
    void cardCarriesTheRecord();
    void recordsOfARun();
};

void TestCreateConferenceIntent::pastOrUnreadableTimeSendsNothing_data()
{
    QTest::addColumn<QString>("timeText");
    QTest::newRow("an hour ago") << QStringLiteral("{'suggestDatetime':'2026-03-07T09:20:00'}");
    QTest::newRow("yesterday") << QStringLiteral("{'suggestDatetime':'2026-03-06'}");
    QTest::newRow("at the beginning of time") << QStringLiteral("{'suggestDatetime':'1970-01-01T08:00:00'}");
    QTest::newRow("no time in it") << QStringLiteral("{}");
    QTest::newRow("not JSON") << QStringLiteral("tomorrow");
}

void TestCreateConferenceIntent::pastOrUnreadableTimeSendsNothing()
{
    QFETCH(QString, timeText);
    CloudIntent intent = intentWith("[{'name':'datetime','value':''}]");
    setSlotText(intent, 0, timeText.replace(QLatin1Char('\''), QLatin1Char('"')));

    const HandlerRun run = runHandler(new CreateConferenceIntent(nullptr), intent, answers("{'ret':'OK'}"));
    compareRun(run, texts(-16012, "抱歉，无法为您预约过去的视频会议。"));
    QVERIFY(run.requests.isEmpty());
    QCOMPARE(log().texts(QtCriticalMsg).size(), 1);
}

void TestCreateConferenceIntent::cardCarriesTheRecord()
{
    const HandlerRun booked =
        runWith(answers("{'ret':'OK','list':[{'confId':'c1','title':'周会'}]}"), Scheduled);
    QCOMPARE(booked.cards.size(), 1);
    QVERIFY(recordOf(booked.cards.first()).isSchedule);
    QCOMPARE(recordOf(booked.cards.first()).scheduleTimeMsecs, ScheduledMsecs);
    QCOMPARE(recordOf(booked.cards.first()).conferences.size(), 1);
    QCOMPARE(recordOf(booked.cards.first()).conferences.first().title, QStringLiteral("周会"));

    const HandlerRun doubtful = runWith(answers(DuplicateOnly));
    QCOMPARE(doubtful.cards.size(), 1);
    const ContactInviteMemberDetail people = recordOf(doubtful.cards.first()).inviteDetail;
    QCOMPARE(people.duplicateUsers.size(), 1);
    QCOMPARE(people.duplicateUsers.first().users.size(), 2);
    QCOMPARE(people.duplicateUsers.first().users.last().userId, QStringLiteral("u2"));

    const HandlerRun overlapping =
        runWith(answers("{'ret':'Time Overlap','list':[{'confId':'c9'}]}"), Scheduled);
    QCOMPARE(overlapping.cards.size(), 1);
    QCOMPARE(recordOf(overlapping.cards.first()).conferences.first().confId, QStringLiteral("c9"));
}

void TestCreateConferenceIntent::recordsOfARun()
{
    const QString worker =
        QStringLiteral("virtual int CreateConferenceIntent::handleCreateVideoMeeting(const CloudIntent&)");
    runWith(answers("{'ret':'OK'}"));
    const QString thread = streamed("handleCreateVideoMeeting", QThread::currentThreadId());
    compareRecords(log(), "intent/createconferenceintent.cpp",
                   {{QtDebugMsg, thread, worker},
                    {QtWarningMsg, QStringLiteral("Create Conference not contain slot:  datetime"), worker},
                    {QtWarningMsg, QStringLiteral("Create Conference not contain slot:  name"), worker}});

    log().clear();
    runWith(answers("{'ret':'OK'}"), Scheduled);
    const QString start = streamed("startTime:", QDateTime::fromMSecsSinceEpoch(ScheduledMsecs));
    compareRecords(log(), "intent/createconferenceintent.cpp",
                   {{QtDebugMsg, thread, worker},
                    {QtWarningMsg, QStringLiteral("Create Conference not contain slot:  name"), worker},
                    {QtInfoMsg, start, worker}});

    log().clear();
    CloudIntent past = intentWith("[{'name':'datetime','value':'{}'},{'name':'name','value':'a'}]");
    runHandler(new CreateConferenceIntent(nullptr), past, answers("{'ret':'OK'}"));
    compareRecords(log(), "intent/createconferenceintent.cpp",
                   {{QtDebugMsg, thread, worker},
                    {QtCriticalMsg, QStringLiteral("Invalid Schedule Conference time ..."), worker}});

    log().clear();
    runWith(answers(TwoFoundOneMissing), "[{'name':'datetime'},{'name':'name','value':'a'}]");
    compareRecords(
        log(), "intent/createconferenceintent.cpp",
        {{QtDebugMsg, thread, worker},
         {QtInfoMsg, QStringLiteral("strNormalUsers \"张三、李四\" strNotExistUsers \"甲\""),
          QStringLiteral("virtual int CreateConferenceIntent::handleReply(int, const CloudIntent&)")}});
}

QTEST_GUILESS_MAIN(TestCreateConferenceIntent)

#include "tst_createconferenceintent.moc"
