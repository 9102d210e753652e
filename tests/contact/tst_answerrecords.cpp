// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactutils.h"
#include "logcapture.h"
#include "signalactiontype.h"
#include "testcolumns.h"
#include "wire/answerwords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextCodec>
#include <QtTest>

#include <cstddef>
#include <initializer_list>
#include <limits>

/// Whether @p offsets increase.
constexpr bool isInOrder(std::initializer_list<std::size_t> offsets)
{
    std::size_t next = 0;
    for (const std::size_t offset : offsets) {
        if (offset < next) {
            return false;
        }
        next = offset + 1;
    }
    return true;
}

// The order of members is part of the binary layout.
static_assert(isInOrder({offsetof(UserInfo, name), offsetof(UserInfo, remarkName), offsetof(UserInfo, userId),
                         offsetof(UserInfo, account)}));
static_assert(isInOrder({offsetof(DuplicateUsers, name), offsetof(DuplicateUsers, users)}));
static_assert(isInOrder({offsetof(ContactDetailMsg, title), offsetof(ContactDetailMsg, participants),
                         offsetof(ContactDetailMsg, duration), offsetof(ContactDetailMsg, startTime),
                         offsetof(ContactDetailMsg, confId), offsetof(ContactDetailMsg, conferenceDialNumber),
                         offsetof(ContactDetailMsg, participantLimit), offsetof(ContactDetailMsg, status),
                         offsetof(ContactDetailMsg, isPayingUser)}));
static_assert(isInOrder({offsetof(ContactInviteMemberDetail, duplicateUsers),
                         offsetof(ContactInviteMemberDetail, normalUsers),
                         offsetof(ContactInviteMemberDetail, notExistUsers),
                         offsetof(ContactInviteMemberDetail, canInviteNum)}));
static_assert(isInOrder({offsetof(ContactCreatedConferenceDetail, isSchedule),
                         offsetof(ContactCreatedConferenceDetail, scheduleTimeMsecs),
                         offsetof(ContactCreatedConferenceDetail, conferences),
                         offsetof(ContactCreatedConferenceDetail, inviteDetail)}));

// Sent as int, so the values are part of the interface.
static_assert(Create_Success == 0 && Create_Duplicate == 1 && Create_TimeOverlap == 2 &&
              Invite_Duplicate == 3 && Invite_ExceedLimit == 4 && JoinMy_List == 5 && Query_List == 6);

namespace {

QJsonArray arrayOf(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).array();
}

ContactDetailMsg conferenceOf(const QByteArray &members)
{
    const QVector<ContactDetailMsg> list = ContactUtils::parseContactMsg(arrayOf("[{" + members + "}]"));
    return list.value(0);
}

/// The title read from the text of an answer; empty on failure.
QString titleOfAnAnswer()
{
    QVector<ContactDetailMsg> conferences;
    const int code = ContactUtils::analyzeQueryResultContext(
        QStringLiteral(R"({"ret": "OK", "list": [{"title": "周会", "confId": "7"}]})"), 0, conferences);
    return code == 0 ? conferences.first().title : QString();
}

} // namespace

class TestAnswerRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conferenceIsReadWhole()
    {
        const QVector<ContactDetailMsg> list = ContactUtils::parseContactMsg(arrayOf(
            R"([{"confId": "7", "conferenceDialNumber": "801", "title": "周会", "startTime": 1700000000000,
                 "duration": 3600000, "participantLimit": 50, "status": "2", "isPayingUser": true,
                 "participants": [{"name": "李雷", "userId": "u1", "account": "lilei", "remarkName": "not read"},
                                  {"name": "韩梅梅", "userId": "u2", "account": "hmm"}]},
                {"confId": "8"}])"));
        QCOMPARE(list.size(), 2);
        const ContactDetailMsg conference = list.first();
        QCOMPARE(conference.confId, QStringLiteral("7"));
        QCOMPARE(conference.conferenceDialNumber, QStringLiteral("801"));
        QCOMPARE(conference.title, QStringLiteral("周会"));
        QCOMPARE(conference.startTime, qint64(1700000000000));
        QCOMPARE(conference.duration, qint64(3600000));
        QCOMPARE(conference.participantLimit, 50);
        QCOMPARE(conference.status, 2);
        QCOMPARE(conference.isPayingUser, true);
        QCOMPARE(conference.participants.size(), 2);
        QCOMPARE(conference.participants.at(0).name, QStringLiteral("李雷"));
        QCOMPARE(conference.participants.at(0).userId, QStringLiteral("u1"));
        QCOMPARE(conference.participants.at(0).account, QStringLiteral("lilei"));
        QVERIFY(conference.participants.at(0).remarkName.isEmpty());
        QCOMPARE(conference.participants.at(1).name, QStringLiteral("韩梅梅"));
        QCOMPARE(list.last().confId, QStringLiteral("8"));
    }

    void missingMembersAreEmpty_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("empty object") << QByteArray("[{}]");
        QTest::newRow("no object") << QByteArray("[7]");
        QTest::newRow("null") << QByteArray("[null]");
        QTest::newRow("other types") << QByteArray(
            R"([{"confId": 7, "conferenceDialNumber": 8, "title": ["x"], "startTime": {},
                               "duration": "60", "participantLimit": "50", "status": 2, "isPayingUser": "true",
                               "participants": {"name": "x"}}])");
    }
    void missingMembersAreEmpty()
    {
        QFETCH(QByteArray, json);
        const QVector<ContactDetailMsg> list = ContactUtils::parseContactMsg(arrayOf(json));
        QCOMPARE(list.size(), 1);
        const ContactDetailMsg conference = list.first();
        QVERIFY(conference.title.isEmpty());
        QVERIFY(conference.participants.isEmpty());
        QCOMPARE(conference.duration, qint64(0));
        QCOMPARE(conference.startTime, qint64(0));
        QVERIFY(conference.confId.isEmpty());
        QVERIFY(conference.conferenceDialNumber.isEmpty());
        QCOMPARE(conference.participantLimit, 0);
        QCOMPARE(conference.status, 0);
        QCOMPARE(conference.isPayingUser, false);
    }

    void startTimes_data()
    {
        addColumns<QByteArray, qint64>({"json", "msecs"});
        QTest::newRow("beyond 32 bits") << QByteArray("1700000000000") << qint64(1700000000000);
        QTest::newRow("before the epoch") << QByteArray("-1") << qint64(-1);
        QTest::newRow("a text with a number") << QByteArray("\"1700000000000\"") << qint64(1700000000000);
        QTest::newRow("a text without") << QByteArray("\"soon\"") << qint64(0);
        QTest::newRow("the last exact whole number")
            << QByteArray("9007199254740992") << qint64(9007199254740992);
        QTest::newRow("with a fraction") << QByteArray("1500.5") << qint64(1501);
    }
    void startTimes()
    {
        QFETCH(QByteArray, json);
        QTEST(conferenceOf("\"startTime\": " + json).startTime, "msecs");
    }

    void durations_data()
    {
        addColumns<QByteArray, qint64>({"json", "duration"});
        QTest::newRow("an hour") << QByteArray("3600000") << qint64(3600000);
        QTest::newRow("written with an exponent") << QByteArray("36e5") << qint64(3600000);
        QTest::newRow("the largest in 32 bits") << QByteArray("2147483647") << qint64(2147483647);
        QTest::newRow("beyond 32 bits") << QByteArray("2147483648") << qint64(0);
        QTest::newRow("with a fraction") << QByteArray("1.5") << qint64(0);
        QTest::newRow("negative") << QByteArray("-60000") << qint64(-60000);
    }
    void durations()
    {
        QFETCH(QByteArray, json);
        QTEST(conferenceOf("\"duration\": " + json).duration, "duration");
    }

    void statuses_data()
    {
        addColumns<QByteArray, int>({"json", "status"});
        QTest::newRow("a text with a number") << QByteArray("\"2\"") << 2;
        QTest::newRow("a number") << QByteArray("2") << 0;
        QTest::newRow("a text without") << QByteArray("\"running\"") << 0;
        QTest::newRow("empty") << QByteArray("\"\"") << 0;
    }
    void statuses()
    {
        QFETCH(QByteArray, json);
        QTEST(conferenceOf("\"status\": " + json).status, "status");
    }

    void usersAreSortedByStatus()
    {
        const ContactInviteMemberDetail detail = ContactUtils::analyzeReturnUsers(
            arrayOf(
                R"([{"name": "李雷", "status": "OK", "remarkName": "老李", "userId": "u1", "account": "lilei"},
                        {"name": "王芳", "status": "Duplicate", "remarkName": "not read",
                         "duplicate_list": [{"name": "王芳（财务）", "userId": "u2", "account": "wf1"},
                                            {"name": "王芳（研发）", "userId": "u3", "account": "wf2"}]},
                        {"name": "赵六", "status": "Not Found"},
                        {"name": "skipped", "status": "Deleted"}, {"name": "skipped"}, 7,
                        {"name": "李四", "status": "OK"}])"),
            {});
        QCOMPARE(detail.normalUsers.size(), 2);
        QCOMPARE(detail.normalUsers.at(0).name, QStringLiteral("李雷"));
        QCOMPARE(detail.normalUsers.at(0).remarkName, QStringLiteral("老李"));
        QCOMPARE(detail.normalUsers.at(0).userId, QStringLiteral("u1"));
        QCOMPARE(detail.normalUsers.at(0).account, QStringLiteral("lilei"));
        QCOMPARE(detail.normalUsers.at(1).name, QStringLiteral("李四"));
        QCOMPARE(detail.duplicateUsers.size(), 1);
        QCOMPARE(detail.duplicateUsers.at(0).name, QStringLiteral("王芳"));
        QCOMPARE(detail.duplicateUsers.at(0).users.size(), 2);
        const UserInfo candidate = detail.duplicateUsers.at(0).users.at(1);
        QCOMPARE(candidate.name, QStringLiteral("王芳"));
        QCOMPARE(candidate.remarkName, QStringLiteral("王芳（研发）"));
        QCOMPARE(candidate.userId, QStringLiteral("u3"));
        QCOMPARE(candidate.account, QStringLiteral("wf2"));
        QCOMPARE(detail.notExistUsers, QVector<QString>{QStringLiteral("赵六")});
        QCOMPARE(detail.canInviteNum, 0);
    }

    void askedNamesDoNotChangeTheOutcome()
    {
        const ContactInviteMemberDetail detail = ContactUtils::analyzeReturnUsers(
            arrayOf(R"([{"name": "a", "status": "Not Found"}])"), {QStringLiteral("b"), QStringLiteral("c")});
        QCOMPARE(detail.notExistUsers, QVector<QString>{QStringLiteral("a")});
    }

    void newRecordsAreEmpty()
    {
        const ContactCreatedConferenceDetail created;
        QCOMPARE(created.isSchedule, false);
        QCOMPARE(created.scheduleTimeMsecs, qint64(0));
        QVERIFY(created.conferences.isEmpty());
        QVERIFY(created.inviteDetail.duplicateUsers.isEmpty());
        QCOMPARE(created.inviteDetail.canInviteNum, 0);
    }

    void recordsTravelInVariantsByValue()
    {
        ContactInviteMemberDetail invited;
        invited.canInviteNum = 4;
        const QVariant payload = QVariant::fromValue(invited);
        invited.canInviteNum = 5;
        QCOMPARE(payload.value<ContactInviteMemberDetail>().canInviteNum, 4);

        ContactQueryConferenceDetail found;
        found.conferences.resize(2);
        QCOMPARE(QVariant::fromValue(found).value<ContactQueryConferenceDetail>().conferences.size(), 2);

        ContactCreatedConferenceDetail created;
        created.scheduleTimeMsecs = 6;
        QCOMPARE(QVariant::fromValue(created).value<ContactCreatedConferenceDetail>().scheduleTimeMsecs,
                 qint64(6));
    }

    void variantOfAnotherRecordGivesAnEmptyOne()
    {
        ContactInviteMemberDetail invited;
        invited.canInviteNum = 4;
        const LogCapture log;
        const auto created = QVariant::fromValue(invited).value<ContactCreatedConferenceDetail>();
        QCOMPARE(created.inviteDetail.canInviteNum, 0);
        QVERIFY(created.conferences.isEmpty());
    }

    void chineseSurvivesTheLocalesEncoding() { QCOMPARE(titleOfAnAnswer(), QStringLiteral("周会")); }

    void encodingWithoutChineseLosesOnlyTheCharacters()
    {
        QTextCodec *const codec = QTextCodec::codecForLocale();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
        const QString title = titleOfAnAnswer();
        QTextCodec::setCodecForLocale(codec);
        QCOMPARE(title, QStringLiteral("??"));
    }
};

QTEST_GUILESS_MAIN(TestAnswerRecords)

#include "tst_answerrecords.moc"
