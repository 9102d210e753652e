// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "askedactions.h"
#include "sampleworld.h"

#include "book/useroverview.h"
#include "core/displaytext.h"
#include "core/statement.h"

#include <QJsonDocument>
#include <QtTest>

/// What actions change in the sample directory, and what they answer besides the outcome word.
class TestActionEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesakesComeWithTheirAccounts();
    void anAnswerTellsAConferenceAsItIs();
    void aConferenceForNowPutsItsHostIntoIt();
    void aConferenceForLaterDoesNot();
    void whoIsNotFoundIsToldBesideTheConference();
    void theSamePersonAskedForTwiceTakesOneSeat();
    void aHostWhoLeavesEndsTheConference();
    void aParticipantWhoLeavesGivesTheSeatBack();
    void aFailedUpdateChangesNothing();
    void anUpdateIsAnsweredWithTheConference();
    void theStateFollowsTheClock();
    void whatJoinsCharactersStaysInNames();
    void theContactsNamesAndTheirRemarksAreKnown();
    void namesThatWereAskedForComeBackClean();
    void whoMustLogInSeesTheWindow();
    void openingTheListShowsTheWindow();
    void aSearchWithoutParametersFindsEverythingFromNowOn();
    void aDayHoldsWhatOverlapsIt();
    void theOverviewTellsTheUserTheConferenceAndNoPasscode();
};

void TestActionEffects::namesakesComeWithTheirAccounts()
{
    SampleWorld world;
    const int before = world.conferences().size();
    const QJsonObject answer =
        world.ask(Create, membersNamed({QStringLiteral("张伟"), QStringLiteral("无名氏")}));
    const QJsonArray users = answer.value(QLatin1String("users")).toArray();
    QCOMPARE(users.size(), 2);
    const QJsonObject duplicate = users.at(0).toObject();
    QCOMPARE(duplicate.value(QLatin1String("name")).toString(), QStringLiteral("张伟"));
    QCOMPARE(duplicate.value(QLatin1String("status")).toString(), QStringLiteral("Duplicate"));
    const QJsonArray candidates = duplicate.value(QLatin1String("duplicate_list")).toArray();
    QCOMPARE(candidates.size(), 3);
    QCOMPARE(candidates.at(1).toObject(),
             (QJsonObject{{QStringLiteral("name"), QStringLiteral("市场部张伟")},
                          {QStringLiteral("userId"), QStringLiteral("u100012")},
                          {QStringLiteral("account"), QStringLiteral("100012")}}));
    QCOMPARE(users.at(1).toObject(), (QJsonObject{{QStringLiteral("name"), QStringLiteral("无名氏")},
                                                  {QStringLiteral("status"), QStringLiteral("Not Found")}}));
    QVERIFY(!answer.contains(QLatin1String("list")));
    QCOMPARE(world.conferences().size(), before);
}

void TestActionEffects::anAnswerTellsAConferenceAsItIs()
{
    SampleWorld world;
    const QJsonObject answer =
        world.ask(Search, QJsonObject{{QStringLiteral("startTime"), at("2026-03-08T10:00")},
                                      {QStringLiteral("endTime"), at("2026-03-08T10:01")}});
    QCOMPARE(list(answer).size(), 1);
    const auto participant = [](const char *account, const char *name) {
        return QJsonObject{{QStringLiteral("userId"), QStringLiteral("u") + QString::fromLatin1(account)},
                           {QStringLiteral("account"), QString::fromLatin1(account)},
                           {QStringLiteral("name"), QString::fromUtf8(name)}};
    };
    const QJsonObject expected{
        {QStringLiteral("confId"), world.conferenceId(QStringLiteral("880100005"))},
        {QStringLiteral("conferenceDialNumber"), QStringLiteral("880100005")},
        {QStringLiteral("title"), QStringLiteral("产品周会")},
        {QStringLiteral("startTime"), at("2026-03-08T10:00")},
        {QStringLiteral("duration"), 3600000},
        {QStringLiteral("participantLimit"), 20},
        {QStringLiteral("status"), QStringLiteral("0")},
        {QStringLiteral("isPayingUser"), true},
        {QStringLiteral("participants"),
         QJsonArray{participant("100001", "王小明"), participant("100003", "李娜"),
                    participant("100004", "陈晨"), participant("100011", "研发部张伟")}}};
    QCOMPARE(list(answer).at(0).toObject(), expected);
}

void TestActionEffects::aConferenceForNowPutsItsHostIntoIt()
{
    SampleWorld world;
    const QJsonObject created =
        list(world.ask(Create, membersNamed({QStringLiteral("赵磊")}))).at(0).toObject();
    QCOMPARE(created.value(QLatin1String("status")).toString(), QStringLiteral("1"));
    QCOMPARE(created.value(QLatin1String("startTime")).toDouble(), double(world.nowMsecs));
    QCOMPARE(ret(world.ask(IsHost)), QStringLiteral("True"));
    const QJsonObject stored =
        world.conference(created.value(QLatin1String("conferenceDialNumber")).toString());
    QCOMPARE(stored.value(QLatin1String("participants")).toArray(),
             (QJsonArray{QJsonObject{{QStringLiteral("account"), QStringLiteral("100001")},
                                     {QStringLiteral("attendance"), QStringLiteral("joined")}},
                         QJsonObject{{QStringLiteral("account"), QStringLiteral("100031")},
                                     {QStringLiteral("attendance"), QStringLiteral("invited")}}}));
}

void TestActionEffects::aConferenceForLaterDoesNot()
{
    SampleWorld world;
    QJsonObject parameters = membersNamed({});
    parameters.insert(QStringLiteral("startTime"), at("2026-03-07T20:00"));
    QCOMPARE(list(world.ask(Create, parameters)).size(), 1);
    QCOMPARE(ret(world.ask(IsHost)), QStringLiteral("No Conference"));
}

void TestActionEffects::whoIsNotFoundIsToldBesideTheConference()
{
    SampleWorld world;
    QJsonObject parameters = membersNamed({QStringLiteral("赵磊"), QStringLiteral("无名氏")});
    parameters.insert(QStringLiteral("startTime"), at("2026-03-07T20:00"));
    const QJsonObject answer = world.ask(Create, parameters);
    QCOMPARE(list(answer).size(), 1);
    QCOMPARE(list(answer).at(0).toObject().value(QLatin1String("participants")).toArray().size(), 2);
    const QJsonArray users = answer.value(QLatin1String("users")).toArray();
    QCOMPARE(users.at(0).toObject(), (QJsonObject{{QStringLiteral("name"), QStringLiteral("赵磊")},
                                                  {QStringLiteral("status"), QStringLiteral("OK")},
                                                  {QStringLiteral("remarkName"), QStringLiteral("赵磊")},
                                                  {QStringLiteral("userId"), QStringLiteral("u100031")},
                                                  {QStringLiteral("account"), QStringLiteral("100031")}}));
    QCOMPARE(users.at(1).toObject().value(QLatin1String("status")).toString(), QStringLiteral("Not Found"));
}

void TestActionEffects::theSamePersonAskedForTwiceTakesOneSeat()
{
    SampleWorld world;
    const QJsonObject answer =
        world.ask(Create, membersNamed({QStringLiteral("小刘"), QStringLiteral("刘洋")}));
    QCOMPARE(ret(answer), QStringLiteral("OK"));
    QCOMPARE(list(answer).at(0).toObject().value(QLatin1String("participants")).toArray().size(), 2);
}

void TestActionEffects::aHostWhoLeavesEndsTheConference()
{
    SampleWorld world;
    const QString number =
        list(world.ask(Create)).at(0).toObject().value(QLatin1String("conferenceDialNumber")).toString();
    world.nowMsecs += 60000;
    QCOMPARE(ret(world.ask(Exit)), QStringLiteral("OK"));
    QCOMPARE(world.conference(number).value(QLatin1String("state")).toString(), QStringLiteral("ended"));
    QCOMPARE(ret(world.ask(Exit)), QStringLiteral("No Conference"));
    QCOMPARE(ret(world.ask(Create)), QStringLiteral("OK"));
}

void TestActionEffects::aParticipantWhoLeavesGivesTheSeatBack()
{
    SampleWorld world;
    world.admin.Login(QStringLiteral("100031"));
    QCOMPARE(ret(world.ask(Exit)), QStringLiteral("OK"));
    QCOMPARE(world.conference(QStringLiteral("880100003")).value(QLatin1String("state")).toString(),
             QStringLiteral("running"));
    world.admin.Login(QStringLiteral("100001"));
    QCOMPARE(ret(world.ask(Join, QJsonObject{{QStringLiteral("conferenceId"), QStringLiteral("880100003")}})),
             QStringLiteral("OK"));
}

void TestActionEffects::aFailedUpdateChangesNothing()
{
    SampleWorld world;
    const QJsonObject before = world.snapshot();
    QCOMPARE(ret(world.ask(Update, QJsonObject{{QStringLiteral("conferenceId"),
                                                world.conferenceId(QStringLiteral("880100005"))},
                                               {QStringLiteral("startTime"), at("2026-03-08T12:00")},
                                               {QStringLiteral("duration"), 900000},
                                               {QStringLiteral("participantLimit"), 101}})),
             QStringLiteral("Update Failed"));
    QCOMPARE(world.snapshot(), before);
}

void TestActionEffects::anUpdateIsAnsweredWithTheConference()
{
    SampleWorld world;
    const QJsonObject answer = world.ask(
        Update, QJsonObject{{QStringLiteral("conferenceId"), world.conferenceId(QStringLiteral("880100005"))},
                            {QStringLiteral("startTime"), at("2026-03-08T12:00")},
                            {QStringLiteral("duration"), 900000},
                            {QStringLiteral("participantLimit"), 30}});
    const QJsonObject changed = list(answer).at(0).toObject();
    QCOMPARE(changed.value(QLatin1String("startTime")).toDouble(), double(at("2026-03-08T12:00")));
    QCOMPARE(changed.value(QLatin1String("duration")).toInt(), 900000);
    QCOMPARE(changed.value(QLatin1String("participantLimit")).toInt(), 30);
    // A search finds it at its new time only.
    QCOMPARE(ret(world.ask(Search, QJsonObject{{QStringLiteral("startTime"), at("2026-03-08T10:00")},
                                               {QStringLiteral("endTime"), at("2026-03-08T11:00")}})),
             QStringLiteral("Not Found"));
    QCOMPARE(list(world.ask(Search, QJsonObject{{QStringLiteral("startTime"), at("2026-03-08T12:00")},
                                                {QStringLiteral("endTime"), at("2026-03-08T12:01")}}))
                 .size(),
             1);
}

void TestActionEffects::theStateFollowsTheClock()
{
    SampleWorld world;
    const auto status = [&world] {
        const QJsonArray found =
            list(world.ask(Search, QJsonObject{{QStringLiteral("startTime"), at("2026-03-08T10:00")},
                                               {QStringLiteral("endTime"), at("2026-03-08T11:00")}}));
        return found.at(0).toObject().value(QLatin1String("status")).toString();
    };
    world.nowMsecs = at("2026-03-08T10:00") - 1;
    QCOMPARE(status(), QStringLiteral("0"));
    world.nowMsecs = at("2026-03-08T10:00");
    QCOMPARE(status(), QStringLiteral("1"));
    world.nowMsecs = at("2026-03-08T11:00") - 1;
    QCOMPARE(status(), QStringLiteral("1"));
    world.nowMsecs = at("2026-03-08T11:00");
    QCOMPARE(status(), QStringLiteral("2"));
}

void TestActionEffects::namesThatWereAskedForComeBackClean()
{
    const QString reversed = QStringLiteral("\u202e张伟\u202c");
    const auto users = [](const QJsonObject &answer) {
        return answer.value(QLatin1String("users")).toArray();
    };
    SampleWorld world;
    const QString override = QString(QChar(0x202e));
    QVERIFY(world.admin.AddPerson(QStringLiteral("300001"), QStringLiteral("甲"), QStringLiteral("free")));
    QVERIFY(world.admin.AddPerson(QStringLiteral("300002"), QStringLiteral("乙"), QStringLiteral("free")));
    for (const char *account : {"300001", "300002"}) {
        // Older versions stored names unchecked.
        Statement(world.book.database().handle(),
                  QStringLiteral("UPDATE person SET name = ? WHERE account = ?"))
            .bind(QString(override + QStringLiteral("孪生")))
            .bind(QString::fromLatin1(account))
            .run();
        QVERIFY(world.admin.AddContact(QStringLiteral("100001"), QString::fromLatin1(account), QString(),
                                       QStringLiteral("colleague")));
    }
    const QJsonArray entries =
        users(world.ask(Create, membersNamed({reversed, QString(override + QStringLiteral("孪生")),
                                              QString(override + QStringLiteral("无名氏"))})));
    QCOMPARE(entries.size(), 3);
    QCOMPARE(entries.at(0).toObject().value(QLatin1String("name")).toString(), QStringLiteral("张伟"));
    QCOMPARE(entries.at(1).toObject().value(QLatin1String("status")).toString(), QStringLiteral("Duplicate"));
    const QString whole = QString::fromUtf8(QJsonDocument(entries).toJson());
    for (const QChar &character : whole) {
        QVERIFY2(character.category() != QChar::Other_Format, qPrintable(whole));
    }
}

void TestActionEffects::whatJoinsCharactersStaysInNames()
{
    const QString family = QStringLiteral("👩\u200d💻");
    const QString persian = QStringLiteral("می\u200cخواهم");
    QCOMPARE(cleanDisplayText(family), family);
    QCOMPARE(cleanDisplayText(persian), persian);
    QCOMPARE(cleanDisplayText(QStringLiteral("a\u200bb\ufeffc")), QStringLiteral("abc"));
}

void TestActionEffects::theContactsNamesAndTheirRemarksAreKnown()
{
    SampleWorld world;
    const QStringList names = world.book.contactNames();
    QVERIFY(names.contains(QStringLiteral("刘洋")));
    QVERIFY(names.contains(QStringLiteral("小刘")));
    QVERIFY(!names.contains(QStringLiteral("孟欣"))); // a stranger
    QVERIFY(!names.contains(QString()));
}

void TestActionEffects::whoMustLogInSeesTheWindow()
{
    SampleWorld world;
    QSignalSpy wanted(&world.book, &ContactsBook::windowWanted);
    world.ask(Search);
    QCOMPARE(wanted.count(), 0);
    world.admin.Logout();
    world.ask(Search);
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(wanted.first().first().value<WindowFocus>(), WindowFocus::Leave);
}

void TestActionEffects::openingTheListShowsTheWindow()
{
    SampleWorld world;
    QSignalSpy wanted(&world.book, &ContactsBook::windowWanted);
    world.ask(Open);
    QCOMPARE(wanted.count(), 1);
    // A program's request, such as joining while in another conference: its user may be typing.
    QCOMPARE(wanted.takeFirst().constFirst().value<WindowFocus>(), WindowFocus::Leave);
    world.ask(Open, {{QStringLiteral("askedBy"), QStringLiteral("user")}});
    QCOMPARE(wanted.takeFirst().constFirst().value<WindowFocus>(), WindowFocus::Take);
}

void TestActionEffects::aSearchWithoutParametersFindsEverythingFromNowOn()
{
    SampleWorld world;
    QStringList numbers;
    const QJsonArray found = list(world.ask(Search));
    for (const QJsonValue &value : found) {
        numbers.append(value.toObject().value(QLatin1String("conferenceDialNumber")).toString());
    }
    // Sorted by start: the running one first, the ended one left out.
    QCOMPARE(numbers, QStringList({QStringLiteral("880100001"), QStringLiteral("880100005"),
                                   QStringLiteral("880100006"), QStringLiteral("880100007")}));
}

void TestActionEffects::aDayHoldsWhatOverlapsIt()
{
    SampleWorld world;
    world.admin.AddConference(QStringLiteral("1"), QStringLiteral("跨夜"), QStringLiteral("100001"),
                              at("2026-03-10T23:30"), 3600000, 5, QString(), {});
    const auto found = [&world](const char *from, const char *to) {
        return list(world.ask(Search, QJsonObject{{QStringLiteral("startTime"), at(from)},
                                                  {QStringLiteral("endTime"), at(to)}}))
            .size();
    };
    QCOMPARE(found("2026-03-10T00:00", "2026-03-11T00:00"), 1);
    QCOMPARE(found("2026-03-11T00:00", "2026-03-12T00:00"), 1);
    QCOMPARE(found("2026-03-11T00:30", "2026-03-12T00:00"), 0);
    QCOMPARE(found("2026-03-10T00:00", "2026-03-10T23:30"), 0);
}

void TestActionEffects::theOverviewTellsTheUserTheConferenceAndNoPasscode()
{
    SampleWorld world;
    const auto overview = [&world] {
        return QJsonDocument::fromJson(userOverview(world.book).toUtf8()).object();
    };
    const QJsonObject user{{QStringLiteral("account"), QStringLiteral("100001")},
                           {QStringLiteral("name"), QStringLiteral("王小明")}};
    QCOMPARE(overview().value(QLatin1String("user")).toObject(), user);
    QVERIFY(!overview().contains(QLatin1String("conference")));
    const auto names = [&overview] {
        return overview().value(QLatin1String("names")).toArray();
    };
    QCOMPARE(names().at(0).toString(), QStringLiteral("李静"));
    QVERIFY(names().contains(QStringLiteral("赵磊")));
    QVERIFY(!names().contains(QStringLiteral("张伟")));
    QVERIFY(!names().contains(QStringLiteral("孟欣"))); // a stranger
    // A remark makes the name ambiguous.
    QVERIFY(world.admin.AddContact(QStringLiteral("100001"), QStringLiteral("200001"), QStringLiteral("赵磊"),
                                   QStringLiteral("colleague")));
    QVERIFY(!names().contains(QStringLiteral("赵磊")));

    const QJsonObject entrance{{QStringLiteral("conferenceId"), QStringLiteral("880100002")},
                               {QStringLiteral("password"), QStringLiteral("246810")}};
    QCOMPARE(ret(world.ask(Join, entrance)), QStringLiteral("OK"));
    const QJsonObject conference{{QStringLiteral("number"), QStringLiteral("880100002")},
                                 {QStringLiteral("title"), QStringLiteral("预算评审")}};
    QCOMPARE(overview().value(QLatin1String("conference")).toObject(), conference);
    QVERIFY(!userOverview(world.book).contains(QLatin1String("246810")));
    world.admin.Logout();
    QCOMPARE(userOverview(world.book), QStringLiteral("{}"));
}

QTEST_GUILESS_MAIN(TestActionEffects)
#include "tst_actioneffects.moc"
