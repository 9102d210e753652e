// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "request/requesttexts.h"
#include "testcolumns.h"
#include "wire/jsontext.h"

#include <QJsonObject>
#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(UserInfo)
Q_DECLARE_METATYPE(QVector<QString>)

class TestRequestTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anUpdate();
    void numbersBeyond32BitsStayWhole();
    void theMembersOfARequest_data();
    void theMembersOfARequest();
    void membersKnownByNameOnly_data();
    void membersKnownByNameOnly();
    void everyCharacterIsWrittenAsQtWritesIt();
    void unusualNames_data();
    void unusualNames();
};

void TestRequestTexts::anUpdate()
{
    ContactDetailMsg one;
    one.confId = QStringLiteral("7");
    one.startTime = Q_INT64_C(1709775000000);
    one.duration = 900000;
    one.participantLimit = 5;
    QCOMPARE(RequestText::updateConference(one),
             QStringLiteral(
                 R"({"conferenceId":"7","duration":900000,"participantLimit":5,"startTime":1709775000000})"));
}

void TestRequestTexts::numbersBeyond32BitsStayWhole()
{
    ContactDetailMsg one;
    one.startTime = Q_INT64_C(4102416000123);
    one.duration = Q_INT64_C(8589934592);
    QCOMPARE(
        RequestText::updateConference(one),
        QStringLiteral(
            R"({"conferenceId":"","duration":8589934592,"participantLimit":0,"startTime":4102416000123})"));
}

void TestRequestTexts::theMembersOfARequest_data()
{
    addColumns<QVector<UserInfo>, QString>({"members", "array"});
    const UserInfo zhang = {QStringLiteral("张三"), QStringLiteral("张三（市场部）"), QStringLiteral("z1"),
                            QStringLiteral("zhangsan01")};
    const UserInfo quoted = {QStringLiteral("\"\\"), {}, QStringLiteral("q"), {}};
    QTest::newRow("nobody") << QVector<UserInfo>() << QStringLiteral("[]");
    QTest::newRow("somebody, by the name that was asked for")
        << QVector<UserInfo>{zhang} << QStringLiteral(R"([{"name":"张三","userId":"z1"}])");
    QTest::newRow("two, in their order")
        << QVector<UserInfo>{quoted, zhang}
        << QStringLiteral(R"([{"name":"\"\\","userId":"q"},{"name":"张三","userId":"z1"}])");
}

void TestRequestTexts::theMembersOfARequest()
{
    QFETCH(QVector<UserInfo>, members);
    QFETCH(QString, array);
    QCOMPARE(RequestText::inviteMembers(RequestText::membersPicked(members)),
             QStringLiteral(R"({"members":%1})").arg(array));
    QCOMPARE(RequestText::createConference(RequestText::membersPicked(members), 0),
             QStringLiteral(R"({"members":%1,"startTime":0})").arg(array));
    QCOMPARE(RequestText::createConference(RequestText::membersPicked(members), Q_INT64_C(1709775000000)),
             QStringLiteral(R"({"members":%1,"startTime":1709775000000})").arg(array));
}

void TestRequestTexts::membersKnownByNameOnly_data()
{
    addColumns<QVector<QString>, QString>({"names", "array"});
    const QString a = QStringLiteral("a");
    QTest::newRow("nobody") << QVector<QString>() << QStringLiteral("[]");
    QTest::newRow("a repeated name once, in the order said")
        << QVector<QString>{QStringLiteral("b"), a, QStringLiteral("b")}
        << QStringLiteral(R"([{"name":"b","userId":""},{"name":"a","userId":""}])");
    QTest::newRow("an empty name is a name")
        << QVector<QString>{QString(), a}
        << QStringLiteral(R"([{"name":"","userId":""},{"name":"a","userId":""}])");
}

void TestRequestTexts::membersKnownByNameOnly()
{
    QFETCH(QVector<QString>, names);
    QFETCH(QString, array);
    const QJsonArray members = RequestText::membersNamed(names);
    QCOMPARE(RequestText::createConference(members), QStringLiteral(R"({"members":%1})").arg(array));
    QCOMPARE(RequestText::inviteMembersNamed(names), RequestText::inviteMembers(members));
}

void TestRequestTexts::everyCharacterIsWrittenAsQtWritesIt()
{
    for (uint code = 0; code <= std::numeric_limits<ushort>::max(); ++code) {
        const QString text = QLatin1Char('a') + QChar(code) + QLatin1Char('z');
        QString written = QStringLiteral("{\"a\":");
        appendQuoted(written, text);
        written += QLatin1Char('}');
        const QString expected = compactText({{QStringLiteral("a"), text}});
        QVERIFY2(written == expected, qPrintable(QStringLiteral("U+%1").arg(code, 4, 16)));
    }
}

void TestRequestTexts::unusualNames_data()
{
    addColumns<QString, QString>({"name", "text"});
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("a quotation mark") << QStringLiteral("张\"三") << QStringLiteral("张\\\"三");
    QTest::newRow("a line break") << QStringLiteral("张\n三") << QStringLiteral("张\\n三");
    QTest::newRow("a character of two units") << QStringLiteral("\U00020000") << QStringLiteral("\U00020000");
    QTest::newRow("half of one") << QString(QChar(0xd840)) << QStringLiteral("\\ud840");
}

void TestRequestTexts::unusualNames()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QCOMPARE(RequestText::addFriend(name), QStringLiteral("{\"userId\":\"%1\"}").arg(text));
    QCOMPARE(RequestText::inviteMembersNamed({name}),
             QStringLiteral("{\"members\":[{\"name\":\"%1\",\"userId\":\"\"}]}").arg(text));
}

QTEST_APPLESS_MAIN(TestRequestTexts)
#include "tst_requesttexts.moc"
