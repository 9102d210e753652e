// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "arrangements.h"
#include "askedactions.h"
#include "sampleworld.h"

#include "testcolumns.h"

#include <QtTest>

/// Every action against the sample directory: the outcome word for each state.
class TestActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outcome_data();
    void outcome();
    void everyWordIsReached();

private:
    QSet<QString> m_reached;
};

void TestActions::outcome_data()
{
    addColumns<Arrange, QString, Parameters, QString>({"arrange", "action", "parameters", "expected"});
    const auto row = [](const char *name, const Arrange &arrange, const QString &action,
                        const Parameters &parameters, const char *expected) {
        QTest::newRow(name) << arrange << action << parameters << QString::fromLatin1(expected);
    };
    const qint64 tonight = at("2026-03-07T20:00");
    const qint64 duringWeekly = at("2026-03-08T10:30");
    const QString nobody = QStringLiteral("无名氏");
    const QString another = QStringLiteral("路人甲");
    const QString zhang = QStringLiteral("张伟");
    const QString zhao = QStringLiteral("赵磊");

    row("creating a conference for now", nothing, Create, none, "OK");
    row("creating with an empty list of members", nothing, Create, names({}), "OK");
    row("creating with a start of 0 is for now", nothing, Create,
        fixed({{QStringLiteral("startTime"), 0}, {QStringLiteral("members"), QJsonArray()}}), "OK");
    row("creating for tonight", nothing, Create, names({zhao}, tonight), "OK");
    row("creating with somebody by the user's remark", nothing, Create, names({QStringLiteral("小刘")}),
        "OK");
    row("creating with somebody by their name under a remark", nothing, Create,
        names({QStringLiteral("刘洋")}), "OK");
    row("creating with a name that three people have", nothing, Create, names({zhang}), "Return");
    row("creating with the one of them that a remark tells apart", nothing, Create,
        names({QStringLiteral("市场部张伟")}), "OK");
    row("creating with the only name that nobody has", nothing, Create, names({nobody}), "Return");
    row("creating with an empty name", nothing, Create, names({QString()}), "Return");
    row("creating with one who is found and one who is not", nothing, Create, names({zhao, nobody}),
        "Return");
    row("creating with two who are not found", nothing, Create, names({nobody, another}), "Return");
    row("creating with somebody picked by id", nothing, Create,
        fixed({{QStringLiteral("members"),
                QJsonArray{QJsonObject{{QStringLiteral("name"), zhang},
                                       {QStringLiteral("userId"), QStringLiteral("u100012")}}}}}),
        "OK");
    row("creating with an id that is not among the contacts", nothing, Create,
        fixed({{QStringLiteral("members"),
                QJsonArray{QJsonObject{{QStringLiteral("name"), zhang},
                                       {QStringLiteral("userId"), QStringLiteral("u200001")}}}}}),
        "Return");
    row("creating during another conference of the user's", nothing, Create, names({zhao}, duringWeekly),
        "Time Overlap");
    row("creating at the very end of another one", nothing, Create, names({}, at("2026-03-08T11:00")), "OK");
    row("creating so that it would run into another one", nothing, Create, names({}, at("2026-03-08T09:01")),
        "Time Overlap");
    row("creating so that it ends when another one starts", nothing, Create,
        names({}, at("2026-03-08T09:00")), "OK");
    row("an overlap is told before the names are asked about", nothing, Create, names({zhang}, duringWeekly),
        "Time Overlap");
    row("creating in the past", nothing, Create, names({}, at("2026-03-07T09:00")), "Invalid Parameters");
    row(
        "creating a little late, after picking among namesakes",
        [](SampleWorld &world) { world.admin.Login(QStringLiteral("100036")); }, Create,
        names({}, at("2026-03-07T10:15")), "OK");
    row(
        "creating for exactly as late as may be",
        [](SampleWorld &world) { world.admin.Login(QStringLiteral("100036")); }, Create,
        names({}, at("2026-03-07T10:10")), "OK");
    row("creating with a name that has spaces around it", nothing, Create, names({QStringLiteral(" 赵磊 ")}),
        "OK");
    row("creating for now while in a conference", startOne, Create, none, "In Other Conference");
    row("creating for now while in one on another device", engageElsewhere, Create, none,
        "In Other Conference");
    row("creating for later while in a conference", startOne, Create, names({}, tonight), "OK");
    row("creating without being logged in", logOut, Create, none, "User Not Login");
    row(
        "creating too often", [](SampleWorld &world) { world.admin.SetCreationLimit(0); }, Create, none,
        "Conference Create Too Frequently");
    row("creating with more than the account's conferences take", useFreeAccount, Create,
        names({zhao, QStringLiteral("孙丽"), QStringLiteral("周一鸣"), QStringLiteral("吴敏"),
               QStringLiteral("郑强"), QStringLiteral("黄蓉"), QStringLiteral("徐婷"), QStringLiteral("马超"),
               QStringLiteral("朱红"), QStringLiteral("胡军")}),
        "Exceed Members Limit");

    row("inviting into the running conference", startOne, Invite, names({zhao}), "OK");
    row("inviting nobody", startOne, Invite, names({}), "OK");
    row("inviting as a participant", joinDutyRoom, Invite, names({zhao}), "OK");
    row(
        "inviting the same person again",
        [](SampleWorld &world) {
            startOne(world);
            QCOMPARE(ret(world.ask(Invite, membersNamed({QStringLiteral("赵磊")}))), QStringLiteral("OK"));
        },
        Invite, names({zhao}), "OK");
    row("inviting a name that three people have", startOne, Invite, names({zhang, zhao}), "Return");
    row("inviting one who is not found", startOne, Invite, names({nobody}), "Not Found");
    row("inviting two who are not found", startOne, Invite, names({nobody, another}), "Return");
    row("inviting one who is found and one who is not", startOne, Invite, names({zhao, nobody}), "Return");
    row("inviting without a conference", nothing, Invite, names({zhao}), "Conference Not Start");
    row("inviting while in a conference on another device", engageElsewhere, Invite, names({zhao}),
        "In Other Conference");
    row("inviting more than there are seats", startOneWithEight, Invite,
        names({QStringLiteral("朱红"), QStringLiteral("胡军")}), "Exceed Members Limit");
    row("inviting exactly as many as there are seats", startOneWithEight, Invite,
        names({QStringLiteral("朱红")}), "OK");
    row("inviting without being logged in", logOut, Invite, names({zhao}), "User Not Login");

    row("joining by number", nothing, Join, number("880100004"), "OK");
    row("joining by a number said in groups", nothing, Join, number("880 100-004"), "OK");
    row("joining the conference that the user is in", joinDutyRoom, Join, number("880100004"), "OK");
    row("joining with the passcode", nothing, Join, number("880100002", "246810"), "OK");
    row("joining without the passcode", nothing, Join, number("880100002"), "Invalid Passcode");
    row("joining with a wrong passcode", nothing, Join, number("880100002", "246811"), "Invalid Passcode");
    row("joining an open conference with a passcode", nothing, Join, number("880100004", "1"), "OK");
    row(
        "the host needs no passcode", [](SampleWorld &world) { world.admin.Login(QStringLiteral("100035")); },
        Join, number("880100002"), "OK");
    row(
        "the invited need no passcode",
        [](SampleWorld &world) {
            QVERIFY(!world.admin
                         .AddConference(QStringLiteral("1"), QStringLiteral("小会"), QStringLiteral("100003"),
                                        world.nowMsecs, 60000, 5, QStringLiteral("1234"),
                                        {QStringLiteral("100001")})
                         .isEmpty());
        },
        Join, number("1"), "OK");
    row("joining a full conference", nothing, Join, number("880100003"), "Participant Out Limit");
    row(
        "joining a full conference in which one has a seat",
        [](SampleWorld &world) { world.admin.Login(QStringLiteral("100031")); }, Join, number("880100003"),
        "OK");
    row("joining before the start", nothing, Join, number("880100005"), "Conference Not Start");
    row("joining after the end", nothing, Join, number("880100008"), "Not Found");
    row("joining an unknown number", nothing, Join, number("1"), "Not Found");
    row("joining no number", nothing, Join, number(""), "Not Found");
    row("joining another conference than the user is in", startOne, Join, number("880100004"),
        "In Other Conference");
    row("joining while in one on another device", engageElsewhere, Join, number("880100004"),
        "In Other Conference");
    row("joining without being logged in", logOut, Join, number("880100004"), "User Not Login");

    row("joining my one running conference", nothing, JoinMy, none, "OK");
    row(
        "joining mine when several run",
        [](SampleWorld &world) {
            world.admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("running"));
        },
        JoinMy, none, "Time Overlap");
    row(
        "joining mine when none runs",
        [](SampleWorld &world) {
            world.admin.SetConferenceState(QStringLiteral("880100001"), QStringLiteral("ended"));
        },
        JoinMy, none, "Not Found");
    row("joining mine while in a conference", startOne, JoinMy, none, "In Other Conference");
    row(
        "joining mine again when the seat has been given away",
        [](SampleWorld &world) {
            world.admin.AddConference(QStringLiteral("1"), QStringLiteral("小会"), QStringLiteral("100003"),
                                      world.nowMsecs, 60000, 2, QString(), {QStringLiteral("100002")});
            useFreeAccount(world);
            QCOMPARE(ret(world.ask(JoinMy)), QStringLiteral("OK"));
            QCOMPARE(ret(world.ask(Exit)), QStringLiteral("OK"));
            world.admin.Login(QStringLiteral("100004"));
            QCOMPARE(ret(world.ask(Exit)), QStringLiteral("OK"));
            QCOMPARE(ret(world.ask(Join, QJsonObject{{QStringLiteral("conferenceId"), QStringLiteral("1")}})),
                     QStringLiteral("OK"));
            useFreeAccount(world);
        },
        JoinMy, none, "Participant Out Limit");
    row("joining mine without being logged in", logOut, JoinMy, none, "User Not Login");

    row("searching everything from now on", nothing, Search, none, "OK");
    row("searching a day with conferences", nothing, Search,
        fixed({{QStringLiteral("startTime"), at("2026-03-08T00:00")},
               {QStringLiteral("endTime"), at("2026-03-09T00:00")}}),
        "OK");
    row("searching a day without conferences", nothing, Search,
        fixed({{QStringLiteral("startTime"), at("2026-03-11T00:00")},
               {QStringLiteral("endTime"), at("2026-03-12T00:00")}}),
        "Not Found");
    row("searching a time that ends before it starts", nothing, Search,
        fixed({{QStringLiteral("startTime"), at("2026-03-09T00:00")},
               {QStringLiteral("endTime"), at("2026-03-08T00:00")}}),
        "Not Found");
    row("searching without being logged in", logOut, Search, none, "User Not Login");

    row("the host of the current conference", startOne, IsHost, none, "True");
    row("a participant of the current conference", joinDutyRoom, IsHost, none, "False");
    row("somebody in a conference on another device", engageElsewhere, IsHost, none, "False");
    row("somebody in no conference", nothing, IsHost, none, "No Conference");
    row("nobody logged in has no conference", logOut, IsHost, none, "User Not Login");

    row("deleting a conference of one's own", nothing, Delete, conference("880100005"), "OK");
    row("deleting somebody else's", nothing, Delete, conference("880100006"), "Not Found");
    row("deleting one that has ended", nothing, Delete, conference("880100008"), "No Conference");
    row("deleting an unknown one", nothing, Delete, number("nothing"), "Not Found");
    row("deleting without an id", nothing, Delete, none, "Not Found");
    row("deleting without being logged in", logOut, Delete, conference("880100005"), "User Not Login");

    row("adding a stranger by account", nothing, AddFriend, userId("200001"), "OK");
    row("adding a stranger by account with spaces around", nothing, AddFriend, userId(" 200001 "), "OK");
    row("adding a stranger by user id", nothing, AddFriend, userId("u200001"), "OK");
    row(
        "what was asked for counts as a friend",
        [](SampleWorld &world) {
            world.admin.SetFriendLimit(4);
            QCOMPARE(
                ret(world.ask(AddFriend, QJsonObject{{QStringLiteral("userId"), QStringLiteral("200001")}})),
                QStringLiteral("OK"));
        },
        AddFriend, userId("200002"), "Exceed Friend Limit");
    row(
        "a limit below nothing is nothing", [](SampleWorld &world) { world.admin.SetFriendLimit(-1); },
        AddFriend, userId("200001"), "Exceed Friend Limit");
    row("adding a stranger by name", nothing, AddFriend, userId("孟欣"), "OK");
    row("adding a colleague", nothing, AddFriend, userId("100031"), "OK");
    row("adding a name that several people have", nothing, AddFriend, userId("张伟"), "Not Found");
    row("adding an unknown account", nothing, AddFriend, userId("999999"), "Not Found");
    row("adding an empty account", nothing, AddFriend, userId(""), "Not Found");
    row("adding a friend", nothing, AddFriend, userId("100003"), "Is Your Friend");
    row(
        "adding somebody who was asked already",
        [](SampleWorld &world) {
            QCOMPARE(
                ret(world.ask(AddFriend, QJsonObject{{QStringLiteral("userId"), QStringLiteral("200001")}})),
                QStringLiteral("OK"));
        },
        AddFriend, userId("200001"), "Is Your Friend");
    row("adding oneself", nothing, AddFriend, userId("100001"), "Is Yourself");
    row(
        "adding one friend too many", [](SampleWorld &world) { world.admin.SetFriendLimit(3); }, AddFriend,
        userId("200001"), "Exceed Friend Limit");
    row(
        "adding the last friend that the limit allows",
        [](SampleWorld &world) { world.admin.SetFriendLimit(4); }, AddFriend, userId("200001"), "OK");
    row("adding without being logged in", logOut, AddFriend, userId("200001"), "User Not Login");

    row("leaving the conference", startOne, Exit, none, "OK");
    row("leaving as a participant", joinDutyRoom, Exit, none, "OK");
    row("leaving when in no conference", nothing, Exit, none, "No Conference");
    row("leaving without being logged in", logOut, Exit, none, "User Not Login");

    row("opening the list", nothing, Open, none, "Success");
    row("opening the list without being logged in", logOut, Open, none, "Success");

    row("updating time, duration and limit", nothing, Update,
        conference("880100005", {{QStringLiteral("startTime"), at("2026-03-08T12:00")},
                                 {QStringLiteral("duration"), 7200000},
                                 {QStringLiteral("participantLimit"), 100}}),
        "OK");
    row("updating nothing", nothing, Update, conference("880100005"), "OK");
    row("updating to what it is", nothing, Update,
        conference("880100005", {{QStringLiteral("startTime"), at("2026-03-08T10:00")},
                                 {QStringLiteral("duration"), 3600000},
                                 {QStringLiteral("participantLimit"), 20}}),
        "OK");
    row("updating into the past", nothing, Update,
        conference("880100005", "startTime", at("2026-03-07T10:00")), "Update Failed");
    row("updating onto another conference", nothing, Update,
        conference("880100005", "startTime", at("2026-03-09T10:00")), "Update Failed");
    row("updating to more than four hours", nothing, Update, conference("880100005", "duration", 14400001),
        "Update Failed");
    row("updating to four hours", nothing, Update, conference("880100005", "duration", 14400000), "OK");
    row("updating to no time at all", nothing, Update, conference("880100005", "duration", 0),
        "Update Failed");
    row("updating to a minute", nothing, Update, conference("880100005", "duration", 60000), "OK");
    row("updating to less than a minute", nothing, Update, conference("880100005", "duration", 59999),
        "Update Failed");
    row(
        "updating so that it ends at this moment",
        [](SampleWorld &world) {
            world.admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("running"));
            world.nowMsecs += 120000;
        },
        Update, conference("880100005", "duration", 120000), "Update Failed");
    row("updating to 101 people", nothing, Update, conference("880100005", "participantLimit", 101),
        "Update Failed");
    row("updating to one person", nothing, Update, conference("880100005", "participantLimit", 1),
        "Update Failed");
    row("updating to fewer people than are invited", nothing, Update,
        conference("880100005", "participantLimit", 3), "Update Failed");
    row("updating to as many people as are invited", nothing, Update,
        conference("880100005", "participantLimit", 4), "OK");
    row("a free account gets no hour", useFreeAccount, Update, conference("880100009", "duration", 3600000),
        "Update Failed");
    row("a free account gets a quarter of an hour", useFreeAccount, Update,
        conference("880100009", "duration", 900000), "OK");
    row("a free account gets no eleven people", useFreeAccount, Update,
        conference("880100009", "participantLimit", 11), "Update Failed");
    row(
        "a free account that pays now gets an hour",
        [](SampleWorld &world) {
            useFreeAccount(world);
            QVERIFY(world.admin.SetAccountKind(QStringLiteral("100002"), QStringLiteral("paying")));
        },
        Update, conference("880100009", "duration", 3600000), "OK");
    row(
        "a running conference is made longer",
        [](SampleWorld &world) {
            world.admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("running"));
            world.admin.SetConferenceState(QStringLiteral("880100001"), QStringLiteral("ended"));
        },
        Update, conference("880100005", "duration", 7200000), "OK");
    row(
        "a running conference is not moved",
        [](SampleWorld &world) {
            world.admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("running"));
        },
        Update, conference("880100005", "startTime", at("2026-03-08T12:00")), "Update Failed");
    row("updating one that has ended", nothing, Update, conference("880100008", "duration", 900000),
        "Update Failed");
    row("updating somebody else's", nothing, Update, conference("880100006", "duration", 900000),
        "Not Found");
    row("updating an unknown one", nothing, Update, number("nothing"), "Not Found");
    row("updating without being logged in", logOut, Update, conference("880100005"), "User Not Login");

    row("an action that there is not", nothing, QStringLiteral("create conference"), none, "Unknown Action");
}

void TestActions::outcome()
{
    QFETCH(Arrange, arrange);
    QFETCH(QString, action);
    QFETCH(Parameters, parameters);
    QFETCH(QString, expected);
    SampleWorld world;
    arrange(world);
    const QJsonObject asked = parameters(world);
    if (expected == QLatin1String("Invalid Parameters")) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Refused parameters for")));
    }
    const QString word = ret(asked.isEmpty() ? world.ask(action) : world.ask(action, asked));
    QCOMPARE(word, expected);
    m_reached.insert(word);
}

void TestActions::everyWordIsReached()
{
    const QSet<QString> words{QStringLiteral("OK"),
                              QStringLiteral("Success"),
                              QStringLiteral("Return"),
                              QStringLiteral("True"),
                              QStringLiteral("False"),
                              QStringLiteral("Not Found"),
                              QStringLiteral("No Conference"),
                              QStringLiteral("Conference Not Start"),
                              QStringLiteral("Exceed Members Limit"),
                              QStringLiteral("Time Overlap"),
                              QStringLiteral("Is Your Friend"),
                              QStringLiteral("Exceed Friend Limit"),
                              QStringLiteral("Is Yourself"),
                              QStringLiteral("In Other Conference"),
                              QStringLiteral("Invalid Passcode"),
                              QStringLiteral("User Not Login"),
                              QStringLiteral("Conference Create Too Frequently"),
                              QStringLiteral("Participant Out Limit"),
                              QStringLiteral("Update Failed")};
    QCOMPARE(words - m_reached, QSet<QString>());
}

QTEST_GUILESS_MAIN(TestActions)
#include "tst_actions.moc"
