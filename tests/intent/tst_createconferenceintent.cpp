// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "createconferenceintent.h"

#include "conferencerecords.h"
#include "handlerrun.h"
#include "logcapture.h"
#include "signalactiontype.h"
#include "sourcerecords.h"
#include "wire/resultcodes.h"

#include <QDateTime>
#include <QTest>
#include <QThread>

namespace {

// The clock stands at 2026-03-07 10:20, see the test's CMake line.
const char NoSlots[] = "[]";
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

} // namespace

class TestCreateConferenceIntent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.reset(new LogCapture(LogCapture::Unexpected::Passes)); }
    void cleanup() { m_log.reset(); }

    void eachOutcomeHasItsReply_data();
    void eachOutcomeHasItsReply();
    void eachOtherCodeLeavesTheReply_data();
    void eachOtherCodeLeavesTheReply();
    void requestHoldsMembersAndTime_data();
    void requestHoldsMembersAndTime();
    void pastOrUnreadableTimeSendsNothing_data();
    void pastOrUnreadableTimeSendsNothing();
    void cardCarriesTheRecord();
    void recordsOfARun();
    void subclassReplacesTheWorker();

private:
    std::unique_ptr<LogCapture> m_log;
};

void TestCreateConferenceIntent::eachOutcomeHasItsReply_data()
{
    QTest::addColumn<QString>("slotArray");
    QTest::addColumn<Script>("script");
    QTest::addColumn<Expected>("expected");
    const auto row = [](const char *name, const char *slotArray, const Script &script,
                        const Expected &expected) {
        QTest::newRow(name) << QString::fromUtf8(slotArray) << script << expected;
    };

    row("created at once, no verb said", NoSlots, answers("{'ret':'OK'}"),
        texts(0, "好的，现在为您发起视频会议。"));
    row("created at once, with the verb that was said", VerbStart, answers("{'ret':'OK'}"),
        texts(0, "好的，现在为您开始视频会议。"));
    row("created at once, the answer's list does not matter", NoSlots,
        answers("{'ret':'OK','list':[{'confId':'c1'}]}"), texts(0, "好的，现在为您发起视频会议。"));
    row("booked, and the answer shows it", Scheduled, answers("{'ret':'OK','list':[{'confId':'c1'}]}"),
        cardBefore(0, "好的，为您预约如下。", Create_Success));
    row("booked, and the answer shows nothing", Scheduled, answers("{'ret':'OK','list':[]}"),
        texts(0, "好的，已成功为您预约。"));

    row("two names not found, booked", Scheduled, answers(TwoMissing),
        cardBefore(-16002, "已为您预约视频会议，未找到甲、乙。", Create_Success));
    row("two names not found, booked, nothing listed", Scheduled,
        answers("{'ret':'Return','users':[{'name':'甲','status':'Not Found'},{'name':'乙','status':'Not "
                "Found'}]}"),
        cardBefore(-16002, "已为您预约视频会议，未找到甲、乙。", Create_Success));
    row("two names not found, started", VerbStart, answers(TwoMissing),
        texts(-16002, "已为您开始视频会议，未找到甲、乙。"));
    row("two names not found, started, no verb said", NoSlots, answers(TwoMissing),
        texts(-16002, "已为您发起视频会议，未找到甲、乙。"));
    row("one name not found, to be booked", Scheduled, answers(OneMissing),
        texts(-16002, "抱歉，没有找到该联系人。"));
    row("one name not found, to be started", VerbStart, answers(OneMissing),
        texts(-16002, "抱歉,无法为您开始视频会议。"));
    row("nobody found and nobody named, to be booked", Scheduled, answers("{'ret':'Not Found'}"),
        texts(-16002, "抱歉，没有找到该联系人。"));
    row("nobody found and nobody named, to be started", NoSlots, answers("{'ret':'Not Found'}"),
        texts(-16002, "抱歉,无法为您发起视频会议。"));

    row("a name of several people", NoSlots, answers(DuplicateOnly),
        cardAfter(-16003, "您需要邀请以下哪位好友:", Create_Duplicate));
    row("a name of several people, booked", Scheduled, answers(DuplicateOnly),
        cardAfter(-16003, "您需要邀请以下哪位好友:", Create_Duplicate));
    row("a name of several people and two names not found", NoSlots, answers(DuplicateAndTwoMissing),
        cardAfter(-16003, "未找到甲、乙，您需要邀请以下哪位好友:", Create_Duplicate));

    row("some found, started", NoSlots, answers(TwoFoundOneMissing),
        texts(-16004, "好的，已为您发起和张三、李四的视频会议，未找到甲。"));
    row("some found, started whatever the verb", VerbStart, answers(TwoFoundOneMissingListed),
        texts(-16004, "好的，已为您发起和张三、李四的视频会议，未找到甲。"));
    row("some found, booked but not listed", Scheduled, answers(TwoFoundOneMissing),
        texts(-16004, "好的，已为您发起和张三、李四的视频会议，未找到甲。"));
    row("some found, booked and listed", Scheduled, answers(TwoFoundOneMissingListed),
        cardBefore(-16004, "好的，已为您预约和张三、李四的视频会议，未找到甲。", Create_Success));
    row("one found, two missing", NoSlots, answers(OneFoundTwoMissing),
        texts(-16004, "好的，已为您发起和张三的视频会议，未找到甲、乙。"));
    row("names that look like placeholders stay as they are", NoSlots, answers(NamesWithPlaceholders),
        texts(-16004, "好的，已为您发起和%2的视频会议，未找到%1。"));

    row("members' limit, booked", ScheduledVerbStart, answers("{'ret':'Exceed Members Limit'}"),
        texts(-16006, "已为您预约视频会议，会议人数已达上限。"));
    row("members' limit, started", VerbStart, answers("{'ret':'Exceed Members Limit'}"),
        texts(-16006, "已为您开始视频会议，会议人数已达上限。"));
    row("members' limit, started, no verb said", NoSlots, answers("{'ret':'Exceed Members Limit'}"),
        texts(-16006, "已为您发起视频会议，会议人数已达上限。"));

    row("overlap that is listed", Scheduled, answers("{'ret':'Time Overlap','list':[{'confId':'c1'}]}"),
        cardAfter(-16008, "您已有重复时间会议。", Create_TimeOverlap));
    row("overlap that is not listed", Scheduled, answers("{'ret':'Time Overlap','list':[]}"),
        texts(-16008, "您已有重复时间会议。"));

    row("in another conference", NoSlots, answers("{'ret':'In Other Conference'}"),
        textsThenList(-16013, "正在会议中。"));
    row("not logged in", NoSlots, answers("{'ret':'User Not Login'}"), texts(-16017, "已为您打开联系人。"));
    row("created too often", NoSlots, answers("{'ret':'Conference Create Too Frequently'}"),
        texts(-16019, "抱歉，操作太频繁，请稍候重试。"));
    row("timed out", NoSlots, callFails(-16020), texts(-16020, "抱歉，请求响应超时。"));
    row("the call failed, first code", NoSlots, callFails(-1),
        texts(-1, "已尝试执行，但操作失败，请稍后重试。"));
    row("the call failed, last code", NoSlots, callFails(-9999),
        texts(-9999, "已尝试执行，但操作失败，请稍后重试。"));
    row("malformed answer", NoSlots, answers("nonsense"), untouched());
    row("unknown outcome word", NoSlots, answers("{'ret':'Perhaps'}"), untouched());
    row("no conference", NoSlots, answers("{'ret':'Conference Not Start'}"), untouched());
}

void TestCreateConferenceIntent::eachOutcomeHasItsReply()
{
    QFETCH(const QString, slotArray);
    QFETCH(const Script, script);
    QFETCH(const Expected, expected);

    const HandlerRun run =
        runHandler(new CreateConferenceIntent(nullptr), intentWith(slotArray.toUtf8().constData()), script);
    compareRun(run, expected);
}

void TestCreateConferenceIntent::eachOtherCodeLeavesTheReply_data()
{
    addCodesWithoutReply({0, -16002, -16003, -16004, -16006, -16008, -16012, -16013, -16017, -16019, -16020});
}

void TestCreateConferenceIntent::eachOtherCodeLeavesTheReply()
{
    QFETCH(const int, code);
    compareRun(replyOf(new CreateConferenceIntent(nullptr), code), untouched());
}

void TestCreateConferenceIntent::requestHoldsMembersAndTime_data()
{
    QTest::addColumn<QString>("slotArray");
    QTest::addColumn<QString>("parameters");
    const auto row = [](const char *name, const char *slotArray, const char *parameters) {
        QTest::newRow(name) << QString::fromUtf8(slotArray) << QString::fromUtf8(parameters);
    };

    row("nobody, now", NoSlots, R"({"members":[]})");
    row("two people, now", "[{'name':'name','value':'张三'},{'name':'name','value':'李四'}]",
        R"({"members":[{"name":"张三","userId":""},{"name":"李四","userId":""}]})");
    row("the normal form goes before what was said", "[{'name':'name','value':'老张','normValue':'张三'}]",
        R"({"members":[{"name":"张三","userId":""}]})");
    row("an empty normal form counts too", "[{'name':'name','value':'老张','normValue':''}]",
        R"({"members":[{"name":"","userId":""}]})");
    row("a repeated name once, case matters",
        "[{'name':'name','value':'a'},{'name':'name','value':'A'},{'name':'name','value':'a'}]",
        R"({"members":[{"name":"a","userId":""},{"name":"A","userId":""}]})");
    row("nobody, tomorrow", Scheduled, R"({"members":[],"startTime":1772935200000})");
    row("the first time counts",
        "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'},"
        "{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-09T10:00:00\\\"}'}]",
        R"({"members":[],"startTime":1772935200000})");
    row("a time slot without text means now", "[{'name':'datetime'}]", R"({"members":[]})");
}

void TestCreateConferenceIntent::requestHoldsMembersAndTime()
{
    QFETCH(const QString, slotArray);
    QFETCH(const QString, parameters);

    const HandlerRun run = runHandler(new CreateConferenceIntent(nullptr),
                                      intentWith(slotArray.toUtf8().constData()), answers("{'ret':'OK'}"));
    QCOMPARE(run.requests.size(), 1);
    QCOMPARE(run.requests.first().action, QStringLiteral("Create Conference"));
    QCOMPARE(run.requests.first().parameters, parameters);
}

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
    QCOMPARE(m_log->texts(QtCriticalMsg).size(), 1);
}

void TestCreateConferenceIntent::cardCarriesTheRecord()
{
    const HandlerRun booked = runHandler(new CreateConferenceIntent(nullptr), intentWith(Scheduled),
                                         answers("{'ret':'OK','list':[{'confId':'c1','title':'周会'}]}"));
    QCOMPARE(booked.cards.size(), 1);
    QVERIFY(recordOf(booked.cards.first()).isSchedule);
    QCOMPARE(recordOf(booked.cards.first()).scheduleTimeMsecs, ScheduledMsecs);
    QCOMPARE(recordOf(booked.cards.first()).conferences.size(), 1);
    QCOMPARE(recordOf(booked.cards.first()).conferences.first().title, QStringLiteral("周会"));

    const HandlerRun doubtful =
        runHandler(new CreateConferenceIntent(nullptr), intentWith(NoSlots), answers(DuplicateOnly));
    QCOMPARE(doubtful.cards.size(), 1);
    const ContactInviteMemberDetail people = recordOf(doubtful.cards.first()).inviteDetail;
    QCOMPARE(people.duplicateUsers.size(), 1);
    QCOMPARE(people.duplicateUsers.first().users.size(), 2);
    QCOMPARE(people.duplicateUsers.first().users.last().userId, QStringLiteral("u2"));

    const HandlerRun overlapping = runHandler(new CreateConferenceIntent(nullptr), intentWith(Scheduled),
                                              answers("{'ret':'Time Overlap','list':[{'confId':'c9'}]}"));
    QCOMPARE(overlapping.cards.size(), 1);
    QCOMPARE(recordOf(overlapping.cards.first()).conferences.first().confId, QStringLiteral("c9"));
}

void TestCreateConferenceIntent::recordsOfARun()
{
    const QString worker =
        QStringLiteral("virtual int CreateConferenceIntent::handleCreateVideoMeeting(const CloudIntent&)");
    runHandler(new CreateConferenceIntent(nullptr), intentWith(NoSlots), answers("{'ret':'OK'}"));
    const QString thread = streamed("handleCreateVideoMeeting", QThread::currentThreadId());
    compareRecords(*m_log, "intent/createconferenceintent.cpp",
                   {{QtDebugMsg, thread, worker},
                    {QtWarningMsg, QStringLiteral("Create Conference not contain slot:  datetime"), worker},
                    {QtWarningMsg, QStringLiteral("Create Conference not contain slot:  name"), worker}});

    m_log->clear();
    runHandler(new CreateConferenceIntent(nullptr), intentWith(Scheduled), answers("{'ret':'OK'}"));
    const QString start = streamed("startTime:", QDateTime::fromMSecsSinceEpoch(ScheduledMsecs));
    compareRecords(*m_log, "intent/createconferenceintent.cpp",
                   {{QtDebugMsg, thread, worker},
                    {QtWarningMsg, QStringLiteral("Create Conference not contain slot:  name"), worker},
                    {QtInfoMsg, start, worker}});

    m_log->clear();
    CloudIntent past = intentWith("[{'name':'datetime','value':'{}'},{'name':'name','value':'a'}]");
    runHandler(new CreateConferenceIntent(nullptr), past, answers("{'ret':'OK'}"));
    compareRecords(*m_log, "intent/createconferenceintent.cpp",
                   {{QtDebugMsg, thread, worker},
                    {QtCriticalMsg, QStringLiteral("Invalid Schedule Conference time ..."), worker}});

    m_log->clear();
    runHandler(new CreateConferenceIntent(nullptr),
               intentWith("[{'name':'datetime'},{'name':'name','value':'a'}]"), answers(TwoFoundOneMissing));
    compareRecords(
        *m_log, "intent/createconferenceintent.cpp",
        {{QtDebugMsg, thread, worker},
         {QtInfoMsg, QStringLiteral("strNormalUsers \"张三、李四\" strNotExistUsers \"甲\""),
          QStringLiteral("virtual int CreateConferenceIntent::handleReply(int, const CloudIntent&)")}});
}

void TestCreateConferenceIntent::subclassReplacesTheWorker()
{
    class Replaced : public CreateConferenceIntent
    {
    public:
        int handleCreateVideoMeeting(const CloudIntent & /*intent*/) override { return 77; }
    };
    Replaced handler;
    QCOMPARE(static_cast<IBusinessIntent &>(handler).action(intentWith()), 77);
}

QTEST_GUILESS_MAIN(TestCreateConferenceIntent)

#include "tst_createconferenceintent.moc"
