// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminderstest.h"

#include <QtTest>

/// Notifications of invitations and friend requests.
class TestInvitations : public RemindersTest
{
    Q_OBJECT

private Q_SLOTS:
    void invitationsAreTold();
    void anInvitationToARunningConferenceIsOneNotification();
    void anInvitationIsDeclined();
    void friendRequestsAreTold();
    void theNextUserIsToldAtLogin();
    void theSampleInvitesNobody();
};

void TestInvitations::invitationsAreTold()
{
    invite("1", "设计讨论", 26 * HourMsecs);
    settle();
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("李娜邀请您参加“设计讨论”")});
    QCOMPARE(lastBody(), QStringLiteral("3月8日 12:20–13:20\n会议号：1"));
    QVERIFY(!m_server->shown.last().actions.contains(QStringLiteral("join")));
    restart();
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    pass(26 * HourMsecs - 5 * MinuteMsecs);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("设计讨论：5 分钟后开始"));
    QCOMPARE(lastBody(), QStringLiteral("12:20–13:20\n主持人：李娜\n会议号：1"));
    // The user's own conferences are no invitations.
    const int before = m_server->shown.size();
    m_world->admin.AddConference(QStringLiteral("2"), QStringLiteral("自己的"), User,
                                 m_world->nowMsecs + 26 * HourMsecs, HourMsecs, 10, QString(), {Friend});
    settle();
    QCOMPARE(m_server->shown.size(), before);
}

void TestInvitations::anInvitationToARunningConferenceIsOneNotification()
{
    invite("1", "设计讨论", -MinuteMsecs);
    invite("2", "马上开始", MinuteMsecs);
    invite("3", "结束了", -HourMsecs);
    settle();
    QCOMPARE(m_server->summaries(), QStringList({QStringLiteral("李娜邀请您参加“设计讨论”"),
                                                 QStringLiteral("李娜邀请您参加“马上开始”")}));
    QCOMPARE(m_server->shown.first().body, QStringLiteral("10:19–11:19\n正在进行\n会议号：1"));
    QVERIFY(m_server->shown.first().actions.contains(QStringLiteral("join")));
    settle();
    QCOMPARE(m_server->shown.size(), 2);
    pass(MinuteMsecs);
    QCOMPARE(m_server->summaries().last(), QStringLiteral("马上开始：现在开始"));
    QCOMPARE(m_server->shown.size(), 3);
}

void TestInvitations::anInvitationIsDeclined()
{
    invite("1", "设计讨论", HourMsecs);
    settle();
    m_server->click(m_server->shown.last().id, QStringLiteral("decline"));
    const QString userId = m_world->book.session().user()->userId;
    const qint64 id = m_world->book.conferences().byDialNumber(QStringLiteral("1"), QString())->id;
    QTRY_COMPARE(*m_world->book.conferences().attendance(id, userId), Attendance::Left);
    pass(HourMsecs - MinuteMsecs);
    pass(MinuteMsecs);
    QCOMPARE(m_server->shown.size(), 1);
    // Another invitation is told again.
    QVERIFY(m_world->book.change([&] {
        m_world->book.conferences().setAttendance(id, userId, Attendance::Invited);
        return true;
    }));
    settle();
    QCOMPARE(m_server->shown.size(), 2);
}

void TestInvitations::friendRequestsAreTold()
{
    QVERIFY(
        m_world->admin.AddContact(QStringLiteral("100005"), User, QString(), QStringLiteral("requested")));
    settle();
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("小刘请求加您为好友")});
    QCOMPARE(lastBody(), QStringLiteral("账号：100005"));
    restart();
    settle();
    QCOMPARE(m_server->shown.size(), 1);
    // The user's own requests are not told.
    m_world->ask(QStringLiteral("Add Friends"),
                 QJsonObject{{QStringLiteral("userId"), QStringLiteral("200001")}});
    settle();
    QCOMPARE(m_server->shown.size(), 1);
}

void TestInvitations::theNextUserIsToldAtLogin()
{
    QVERIFY(m_world->admin.Login(QStringLiteral("100002")));
    m_world->ask(QStringLiteral("Add Friends"), QJsonObject{{QStringLiteral("userId"), User}});
    m_world->ask(QStringLiteral("Create Conference"), membersNamed({QStringLiteral("王小明")}));
    settle();
    QCOMPARE(m_server->summaries(), QStringList());
    QVERIFY(m_world->admin.Login(User));
    settle();
    QCOMPARE(m_server->summaries(), QStringList({QStringLiteral("李静邀请您参加“李静的视频会议”"),
                                                 QStringLiteral("李静请求加您为好友")}));
}

void TestInvitations::theSampleInvitesNobody()
{
    QVERIFY(m_world->admin.LoadSample());
    settle();
    // Only the reminder of the running conference is shown.
    QCOMPARE(m_server->summaries(), QStringList{QStringLiteral("部门早会：已于 10:00 开始")});
}

QTEST_GUILESS_MAIN(TestInvitations)
#include "tst_invitations.moc"
