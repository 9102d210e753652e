// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "joinmyconferenceintent.h"

#include "conferencerecords.h"
#include "handlertest.h"
#include "signalactiontype.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[]";

class Replaced : public JoinMyConferenceIntent
{
public:
    using JoinMyConferenceIntent::JoinMyConferenceIntent;
    int handleJoinMyConference(const CloudIntent & /*intent*/) override { return 77; }
};

} // namespace

class TestJoinMyConferenceIntent : public HandlerTest
{
    Q_OBJECT

public:
    TestJoinMyConferenceIntent()
        : HandlerTest({make<JoinMyConferenceIntent>, make<Replaced>, "Join My Conference", UsualSlots})
    {
    }

protected:
    [[nodiscard]] QVector<Outcome> outcomes() const override;
    [[nodiscard]] QVector<Request> requests() const override;

private Q_SLOTS:
    void cardCarriesTheRecord();
};

QVector<HandlerTest::Outcome> TestJoinMyConferenceIntent::outcomes() const
{
    return {
        {"joined", answers("{'ret':'OK'}"), texts(0, "好的，您已成功加入会议。")},
        {"not found", answers("{'ret':'Not Found'}"), texts(-16007, "抱歉，未查询到视频会议。")},
        {"several to choose from", answers("{'ret':'Time Overlap','list':[{'confId':'c1'},{'confId':'c2'}]}"),
         cardAfter(-16008, "以下是您要参与的视频会议:", JoinMy_List)},
        {"in another conference", answers("{'ret':'In Other Conference'}"),
         textsThenList(-16013, "正在会议中。")},
        {"wrong password", answers("{'ret':'Invalid Passcode'}"), texts(-16014, "请输入密码:")},
        {"not started", answers("{'ret':'Conference Not Start'}"), untouched()},
        {"full", answers("{'ret':'Participant Out Limit'}"), untouched()},
    };
}

QVector<HandlerTest::Request> TestJoinMyConferenceIntent::requests() const
{
    return {
        {"nothing", UsualSlots, ""},
        {"slots are not read", "[{'name':'id','value':'4001'}]", ""},
    };
}

void TestJoinMyConferenceIntent::cardCarriesTheRecord()
{
    const HandlerRun run =
        runWith(answers("{'ret':'Time Overlap','list':[{'confId':'c1'},{'confId':'c2'}]}"));
    QCOMPARE(run.cards.size(), 1);
    const auto record = run.cards.first().payload.value<ContactQueryConferenceDetail>();
    QCOMPARE(record.conferences.size(), 2);
    QCOMPARE(record.conferences.last().confId, QStringLiteral("c2"));
}

QTEST_GUILESS_MAIN(TestJoinMyConferenceIntent)

#include "tst_joinmyconferenceintent.moc"
