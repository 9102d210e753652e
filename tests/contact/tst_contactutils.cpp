// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactutils.h"
#include "logcapture.h"
#include "testcolumns.h"

#include <QtTest>

Q_DECLARE_METATYPE(QVector<QString>)

class TestContactUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void singleTexts_data()
    {
        addColumns<QString, QString>({"text", "inJson"});
        QTest::newRow("plain") << QStringLiteral("lilei") << QStringLiteral("lilei");
        QTest::newRow("Chinese") << QStringLiteral("李 雷") << QStringLiteral("李 雷");
        QTest::newRow("quotes and line breaks")
            << QStringLiteral("a\"b\\c\nd") << QStringLiteral("a\\\"b\\\\c\\nd");
        QTest::newRow("empty") << QString(QLatin1String("")) << QString();
        QTest::newRow("null") << QString() << QString();
    }
    void singleTexts()
    {
        QFETCH(QString, text);
        QFETCH(QString, inJson);
        const LogCapture log;
        QCOMPARE(ContactUtils::addbuddyParamInit(text), QStringLiteral(R"({"userId":"%1"})").arg(inJson));
        QCOMPARE(ContactUtils::deleteParamInit(text), QStringLiteral(R"({"conferenceId":"%1"})").arg(inJson));
        QCOMPARE(ContactUtils::joinParamInit(text, QStringLiteral("1234")),
                 QStringLiteral(R"({"conferenceId":"%1","password":"1234"})").arg(inJson));
        QCOMPARE(ContactUtils::joinParamInit(QStringLiteral("801"), text),
                 QStringLiteral(R"({"conferenceId":"801","password":"%1"})").arg(inJson));
        QCOMPARE(log.lines(), QStringList());
    }

    void inviteLeavesOutEmptyAndRepeatedNames_data()
    {
        addColumns<QVector<QString>, QString>({"names", "members"});
        const QString a = QStringLiteral("A");
        const QString b = QStringLiteral("B");
        QTest::newRow("nobody") << QVector<QString>() << QString();
        QTest::newRow("an empty and a repeated one")
            << QVector<QString>{a, QString(), a, b}
            << QStringLiteral(R"({"name":"A","userId":""},{"name":"B","userId":""})");
        QTest::newRow("in the given order")
            << QVector<QString>{b, a}
            << QStringLiteral(R"({"name":"B","userId":""},{"name":"A","userId":""})");
        QTest::newRow("other case is another name")
            << QVector<QString>{a, QStringLiteral("a")}
            << QStringLiteral(R"({"name":"A","userId":""},{"name":"a","userId":""})");
        QTest::newRow("a blank is a name")
            << QVector<QString>{QStringLiteral(" ")} << QStringLiteral(R"({"name":" ","userId":""})");
    }
    void inviteLeavesOutEmptyAndRepeatedNames()
    {
        QFETCH(QVector<QString>, names);
        QFETCH(QString, members);
        const LogCapture log;
        const QString expected = QStringLiteral(R"({"members":[%1]})").arg(members);
        QCOMPARE(ContactUtils::inviteParamInit(names), expected);
        QCOMPARE(log.lines(),
                 QStringList{QStringLiteral("debug: jsonObjMember: QJsonObject(%1)").arg(expected)});
    }

    void namesAreJoined_data()
    {
        addColumns<QVector<QString>, QString>({"names", "text"});
        const QString a = QStringLiteral("A");
        QTest::newRow("none") << QVector<QString>() << QString();
        QTest::newRow("one") << QVector<QString>{a} << a;
        QTest::newRow("three") << QVector<QString>{a, QStringLiteral("B"), QStringLiteral("C")}
                               << QStringLiteral("A、B、C");
        QTest::newRow("an empty one counts") << QVector<QString>{a, QString()} << QStringLiteral("A、");
    }
    void namesAreJoined()
    {
        QFETCH(QVector<QString>, names);
        QTEST(ContactUtils::vectorToString(names), "text");
    }

    void oneInstanceForTheProcess()
    {
        QVERIFY(ContactUtils::instance() != nullptr);
        QCOMPARE(ContactUtils::instance(), ContactUtils::instance());
        QVERIFY(ContactUtils::instance()->parent() == nullptr);
        QCOMPARE(ContactUtils::instance()->metaObject()->className(), "ContactUtils");
    }
};

QTEST_GUILESS_MAIN(TestContactUtils)

#include "tst_contactutils.moc"
