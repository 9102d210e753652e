// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardreplies.h"

#include "card/confirmation.h"
#include "testcolumns.h"

#include <QtTest>

using Purpose = const Confirmation &(*)();

Q_DECLARE_METATYPE(Purpose)

class TestCardReplies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatAConfirmationSays_data();
    void whatAConfirmationSays();
    void namesThatLookLikePlaces();
    void aJoinedList_data();
    void aJoinedList();
    void whatAChangeSays();
    void whatACancellationSays();
};

void TestCardReplies::whatAConfirmationSays_data()
{
    addColumns<Purpose, QStringList, int, QString>({"purpose", "names", "code", "text"});

    const QStringList none;
    const QStringList one = {QStringLiteral("A")};
    const QStringList two = {QStringLiteral("A"), QStringLiteral("B")};
    const QStringList three = {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
    const QStringList four = three + QStringList{QStringLiteral("D")};

    struct Row
    {
        const char *name;
        QStringList names;
        int code;
        QString create;
        QString invite;
        QString withinLimit;
    };
    const QString cannotStart = QStringLiteral("抱歉无法为您开启视频会议。");
    const QString cannotInvite = QStringLiteral("抱歉无法为您邀请。");
    const Row rows[] = {
        {"nobody", none, 0, QStringLiteral("好的，已为您发起视频会议。"),
         QStringLiteral("好的，已为您邀请加入会议。"), QStringLiteral("好的，已为您邀请加入会议。")},
        {"one", one, 0, QStringLiteral("好的，已为您发起和A的视频会议。"),
         QStringLiteral("好的，已为您发起和A的视频会议。"),
         QStringLiteral("好的，已为您发起和A的视频会议。")},
        {"two", two, 0, QStringLiteral("好的，已为您发起与A和B的视频会议。"),
         QStringLiteral("好的，已为您发起与A和B的视频会议。"),
         QStringLiteral("好的，已为您发起A和B的视频会议。")},
        {"three", three, 0, QStringLiteral("好的，已为您发起与A、B和C的视频会议。"),
         QStringLiteral("好的，已为您发起与A、B和C的视频会议。"),
         QStringLiteral("好的，已为您发起A和B的视频会议。")},
        {"four", four, 0, QStringLiteral("好的，已为您发起与A、B、C和D的视频会议。"),
         QStringLiteral("好的，已为您发起与A、B、C和D的视频会议。"),
         QStringLiteral("好的，已为您发起A和B的视频会议。")},
        {"a failure with nobody", none, -16006, cannotStart, cannotInvite, cannotInvite},
        {"a failure with names", three, -16001, cannotStart, cannotInvite, cannotInvite},
        {"a failure of the call", one, -1, cannotStart, cannotInvite, cannotInvite},
        {"a positive code", one, 5, cannotStart, cannotInvite, cannotInvite},
    };
    for (const Row &row : rows) {
        QTest::addRow("created: %s", row.name)
            << Purpose(Confirmation::create) << row.names << row.code << row.create;
        QTest::addRow("invited: %s", row.name)
            << Purpose(Confirmation::invite) << row.names << row.code << row.invite;
        QTest::addRow("invited within the limit: %s", row.name)
            << Purpose(Confirmation::inviteWithinLimit) << row.names << row.code << row.withinLimit;
    }
}

void TestCardReplies::whatAConfirmationSays()
{
    QFETCH(Purpose, purpose);
    QFETCH(QStringList, names);
    QFETCH(int, code);
    QVector<UserInfo> members;
    for (const QString &name : names) {
        members.append({name, {}, {}, {}});
    }
    QTEST(purpose().reply(members, code), "text");
}

void TestCardReplies::namesThatLookLikePlaces()
{
    QCOMPARE(CardReplies::created({QStringLiteral("%2"), QStringLiteral("%1")}),
             QStringLiteral("好的，已为您发起与%2和%1的视频会议。"));
    QCOMPARE(CardReplies::invitedWithinLimit({QStringLiteral("%2"), QStringLiteral("%1")}),
             QStringLiteral("好的，已为您发起%2和%1的视频会议。"));
}

void TestCardReplies::aJoinedList_data()
{
    addColumns<QStringList, QString>({"names", "text"});
    QTest::newRow("nobody") << QStringList() << QString();
    QTest::newRow("one") << QStringList{QStringLiteral("A")} << QStringLiteral("A");
    QTest::newRow("two") << QStringList{QStringLiteral("A"), QStringLiteral("B")} << QStringLiteral("A和B");
    QTest::newRow("three") << QStringList{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}
                           << QStringLiteral("A、B和C");
}

void TestCardReplies::aJoinedList()
{
    QFETCH(QStringList, names);
    QTEST(CardReplies::joined(names), "text");
}

void TestCardReplies::whatAChangeSays()
{
    QCOMPARE(CardReplies::modified(0), QStringLiteral("会议信息修改成功。"));
    for (const int code : {-16001, -1, 5}) {
        QCOMPARE(CardReplies::modified(code), QStringLiteral("修改失败，请前往联系人应用修改。"));
    }
}

void TestCardReplies::whatACancellationSays()
{
    QCOMPARE(CardReplies::cancelled(0), QStringLiteral("已为您取消会议。"));
    for (const int code : {-16001, -1, 5}) {
        QCOMPARE(CardReplies::cancelled(code), QStringLiteral("会议取消失败，请前往联系人应用取消。"));
    }
}

QTEST_APPLESS_MAIN(TestCardReplies)
#include "tst_cardreplies.moc"
