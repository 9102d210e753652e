// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "memberphrases.h"
#include "testcolumns.h"

#include <QTest>

class TestMemberPhrases : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreJoined_data();
    void namesAreJoined();
    void promptNamesWhoIsMissing_data();
    void promptNamesWhoIsMissing();
};

void TestMemberPhrases::namesAreJoined_data()
{
    addColumns<QStringList, QString>({"names", "joined"});
    QTest::newRow("nobody") << QStringList() << QString();
    QTest::newRow("one") << QStringList{QStringLiteral("张三")} << QStringLiteral("张三");
    QTest::newRow("three") << QStringList{QStringLiteral("甲"), QStringLiteral("乙"), QStringLiteral("甲")}
                           << QStringLiteral("甲、乙、甲");
}

void TestMemberPhrases::namesAreJoined()
{
    QFETCH(const QStringList, names);
    QFETCH(const QString, joined);
    QVector<UserInfo> users;
    for (const QString &name : names) {
        users.append(
            {name, QStringLiteral("shown otherwise"), QStringLiteral("id"), QStringLiteral("account")});
    }
    QCOMPARE(MemberPhrases::joinedNames(users), joined);
}

void TestMemberPhrases::promptNamesWhoIsMissing_data()
{
    addColumns<QVector<QString>, QString>({"missing", "prompt"});
    QTest::newRow("nobody") << QVector<QString>() << QStringLiteral("您需要邀请以下哪位好友:");
    QTest::newRow("one") << QVector<QString>{QStringLiteral("A")}
                         << QStringLiteral("未找到A，您需要邀请以下哪位好友:");
    QTest::newRow("two") << QVector<QString>{QStringLiteral("A"), QStringLiteral("B")}
                         << QStringLiteral("未找到A、B，您需要邀请以下哪位好友:");
    QTest::newRow("one that looks like a placeholder")
        << QVector<QString>{QStringLiteral("%1")} << QStringLiteral("未找到%1，您需要邀请以下哪位好友:");
}

void TestMemberPhrases::promptNamesWhoIsMissing()
{
    QFETCH(const QVector<QString>, missing);
    QFETCH(const QString, prompt);
    QCOMPARE(MemberPhrases::choicePrompt(missing), prompt);
}

QTEST_GUILESS_MAIN(TestMemberPhrases)

#include "tst_memberphrases.moc"
