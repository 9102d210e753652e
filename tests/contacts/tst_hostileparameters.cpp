// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "logcapture.h"

#include "actions/requestparameters.h"
#include "testcolumns.h"

#include <QtTest>

namespace {

QString nested(int depth)
{
    return QStringLiteral("{\"members\":") + QString(depth, QLatin1Char('[')) +
           QString(depth, QLatin1Char(']')) + QLatin1Char('}');
}

QString manyMembers(int count)
{
    QStringList members;
    for (int i = 0; i < count; ++i) {
        members.append(QStringLiteral("{\"name\":\"%1\"}").arg(i));
    }
    return QStringLiteral("{\"members\":[%1]}").arg(members.join(QLatin1Char(',')));
}

} // namespace

/// Parameters that no honest program sends: each gets an answer, and nothing changes.
class TestHostileParameters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refused_data();
    void refused();
    void oddButHarmless_data();
    void oddButHarmless();
    void aNameGoesBackClean();
    void titlesAndNamesInAnswersAreClean();
    void theAdministrationRefusesPasscodesNobodyCanType_data();
    void theAdministrationRefusesPasscodesNobodyCanType();
};

void TestHostileParameters::refused_data()
{
    addColumns<QString, QString>({"action", "parameters"});
    const auto create = QStringLiteral("Create Conference");
    const auto update = QStringLiteral("Update Conference");
    const auto search = QStringLiteral("Search Conference");
    const auto join = QStringLiteral("Join Conference");
    const auto row = [](const char *name, const QString &action, const QString &parameters) {
        QTest::newRow(name) << action << parameters;
    };
    row("a text that is no JSON", create, QStringLiteral("hello"));
    row("a lone brace", create, QStringLiteral("{"));
    row("a list", create, QStringLiteral("[]"));
    row("null", create, QStringLiteral("null"));
    row("blanks", create, QStringLiteral("   "));
    row("two objects", create, QStringLiteral("{}{}"));
    row("too long by a byte", create,
        QStringLiteral("{\"a\":\"%1\"}").arg(QString(RequestParameters::MaxBytes - 7, QLatin1Char('x'))));
    row("too long in bytes only", create,
        QStringLiteral("{\"a\":\"%1\"}").arg(QString(RequestParameters::MaxBytes / 2, QChar(0x4f1a))));
    row("forty megabytes", create, QString(40 * 1024 * 1024, QLatin1Char('[')));
    row("nested a thousand deep", create, nested(1500));
    row("nested ten thousand deep", create, nested(10000));
    row("members that are a text", create, QStringLiteral("{\"members\":\"张伟\"}"));
    row("members that are null", create, QStringLiteral("{\"members\":null}"));
    row("a member that is a text", create, QStringLiteral("{\"members\":[\"张伟\"]}"));
    row("a member's name that is a number", create, QStringLiteral("{\"members\":[{\"name\":1}]}"));
    row("a member's id that is a list", create,
        QStringLiteral("{\"members\":[{\"name\":\"a\",\"userId\":[]}]}"));
    row("a good member and a bad one", create,
        QStringLiteral("{\"members\":[{\"name\":\"赵磊\"},{\"name\":{}}]}"));
    row("301 members", create, manyMembers(301));
    row("a NUL in a name", create, QStringLiteral("{\"members\":[{\"name\":\"\\u0000\"}]}"));
    row("a start that is a text", create, QStringLiteral("{\"startTime\":\"1772850000000\"}"));
    row("a negative start", create, QStringLiteral("{\"startTime\":-1}"));
    row("a start with a fraction", create, QStringLiteral("{\"startTime\":1772850000000.5}"));
    row("a start beyond 64 bits", create, QStringLiteral("{\"startTime\":18446744073709551616}"));
    row("the largest number of all", create, QStringLiteral("{\"startTime\":1e308}"));
    row("a start after the year 9999", create, QStringLiteral("{\"startTime\":253402300800000}"));
    row("a start in the past", create, QStringLiteral("{\"startTime\":1}"));
    row("a start that is true", create, QStringLiteral("{\"startTime\":true}"));
    row("a duration that is a text", update, QStringLiteral("{\"conferenceId\":\"a\",\"duration\":\"1\"}"));
    row("a negative duration", update, QStringLiteral("{\"conferenceId\":\"a\",\"duration\":-900000}"));
    row("a conference's id that is a number", update, QStringLiteral("{\"conferenceId\":1}"));
    row("a limit with a fraction", update,
        QStringLiteral("{\"conferenceId\":\"a\",\"participantLimit\":2.5}"));
    row("a range whose end is a text", search, QStringLiteral("{\"startTime\":1,\"endTime\":\"2\"}"));
    row("a number to join that is a number", join, QStringLiteral("{\"conferenceId\":880100004}"));
    row("a password that is a number", join,
        QStringLiteral("{\"conferenceId\":\"880100004\",\"password\":1}"));
    row("parameters for an action that takes none", QStringLiteral("Exit Conference"),
        QStringLiteral("nothing"));
    row("a friend that is a number", QStringLiteral("Add Friends"), QStringLiteral("{\"userId\":200001}"));
}

void TestHostileParameters::refused()
{
    QFETCH(QString, action);
    QFETCH(QString, parameters);
    SampleWorld world;
    const QJsonObject before = world.snapshot();
    const LogCapture log(LogCapture::Unexpected::Passes);
    QCOMPARE(world.ask(action, parameters),
             (QJsonObject{{QStringLiteral("ret"), QStringLiteral("Invalid Parameters")}}));
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
    QCOMPARE(world.snapshot(), before);
}

void TestHostileParameters::oddButHarmless_data()
{
    addColumns<QString, QString, QString>({"action", "parameters", "expected"});
    const auto row = [](const char *name, const char *action, const QString &parameters,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(action) << parameters << QString::fromLatin1(expected);
    };
    row("SQL in a name", "Create Conference",
        QStringLiteral("{\"members\":[{\"name\":\"' OR 1=1; DROP TABLE person; --\"}]}"), "Return");
    row("SQL in an account", "Add Friends", QStringLiteral("{\"userId\":\"' OR '1'='1\"}"), "Not Found");
    row("SQL in a number", "Join Conference", QStringLiteral("{\"conferenceId\":\"' OR 1=1 --\"}"),
        "Not Found");
    row("a pattern in a name", "Create Conference", QStringLiteral("{\"members\":[{\"name\":\"%\"}]}"),
        "Return");
    row("a lone surrogate", "Create Conference", QStringLiteral("{\"members\":[{\"name\":\"\\ud800\"}]}"),
        "Return");
    row("keys that nobody knows", "Is Conference Host", QStringLiteral("{\"x\":{\"y\":[1,2,3]}}"),
        "No Conference");
    row("a far end of a range", "Search Conference",
        QStringLiteral("{\"startTime\":0,\"endTime\":253402300799999}"), "OK");
    row("a limit beyond 32 bits", "Update Conference",
        QStringLiteral("{\"conferenceId\":\"a\",\"participantLimit\":4294967298}"), "Not Found");
}

void TestHostileParameters::oddButHarmless()
{
    QFETCH(QString, action);
    QFETCH(QString, parameters);
    QFETCH(QString, expected);
    SampleWorld world;
    const QJsonObject before = world.snapshot();
    QCOMPARE(world.ask(action, parameters).value(QLatin1String("ret")).toString(), expected);
    QCOMPARE(world.snapshot(), before);
}

void TestHostileParameters::aNameGoesBackClean()
{
    // The cards show the name; the caller matches it by position.
    SampleWorld world;
    const QString odd = QStringLiteral("\u202e李四 ");
    const QJsonArray users = world.ask(QStringLiteral("Create Conference"), membersNamed({odd}))
                                 .value(QLatin1String("users"))
                                 .toArray();
    QCOMPARE(users.at(0).toObject().value(QLatin1String("name")).toString(), QStringLiteral("李四"));
}

void TestHostileParameters::theAdministrationRefusesPasscodesNobodyCanType_data()
{
    QTest::addColumn<QString>("passcode");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("the longest") << QString(20, QLatin1Char('1')) << true;
    QTest::newRow("none") << QString() << true;
    QTest::newRow("longer") << QString(21, QLatin1Char('1')) << false;
    QTest::newRow("a space at its end") << QStringLiteral("1 ") << false;
    QTest::newRow("a character that is not seen") << QStringLiteral("1\u200b") << false;
}

void TestHostileParameters::theAdministrationRefusesPasscodesNobodyCanType()
{
    QFETCH(QString, passcode);
    QFETCH(bool, isTaken);
    SampleWorld world;
    const QString id =
        world.admin.AddConference(QStringLiteral("1"), QStringLiteral("会"), QStringLiteral("100001"),
                                  world.nowMsecs, 60000, 5, passcode, {});
    QCOMPARE(!id.isEmpty(), isTaken);
    QCOMPARE(!world.conference(QStringLiteral("1")).isEmpty(), isTaken);
}

void TestHostileParameters::titlesAndNamesInAnswersAreClean()
{
    SampleWorld world;
    const QString hostile = QStringLiteral("\u202e周\u0007\u200b会\n\u2066");
    QVERIFY(world.admin.AddPerson(QStringLiteral("300001"), hostile, QStringLiteral("free")));
    QVERIFY(!world.admin
                 .AddConference(QStringLiteral("1"), hostile, QStringLiteral("300001"), world.nowMsecs, 60000,
                                5, QString(), {QStringLiteral("100001")})
                 .isEmpty());
    const QJsonArray found = world
                                 .ask(QStringLiteral("Search Conference"),
                                      QJsonObject{{QStringLiteral("startTime"), world.nowMsecs},
                                                  {QStringLiteral("endTime"), world.nowMsecs + 1}})
                                 .value(QLatin1String("list"))
                                 .toArray();
    QCOMPARE(found.size(), 2);
    const QJsonObject conference = found.at(1).toObject();
    QCOMPARE(conference.value(QLatin1String("title")).toString(), QStringLiteral("周会"));
    QCOMPARE(conference.value(QLatin1String("participants"))
                 .toArray()
                 .at(0)
                 .toObject()
                 .value(QLatin1String("name"))
                 .toString(),
             QStringLiteral("周会"));
}

QTEST_GUILESS_MAIN(TestHostileParameters)
#include "tst_hostileparameters.moc"
