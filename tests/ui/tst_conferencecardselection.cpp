// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "testcolumns.h"
#include "titleitem.h"

#include <QLayout>
#include <QPushButton>
#include <QtTest>

using namespace CardSamples;

/// The cards for picking people: what they offer, send and say.
class TestConferenceCardSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRowsOfASelectionCard_data();
    void theRowsOfASelectionCard();
    void theMeasuresOfASelectionCard();
    void aCardThatCannotBeConfirmed();

    void confirm_data();
    void confirm();
    void theNamesSaid_data();
    void theNamesSaid();
    void whoIsFoundTwiceIsSentTwice_data();
    void whoIsFoundTwiceIsSentTwice();
    void thePickedPersonIsTakenBack();
    void theStartOfTheConference_data();
    void theStartOfTheConference();
    void howManyCanBePicked_data();
    void howManyCanBePicked();
    void aPickTakenBackMakesRoom();
};

namespace {

QPushButton *confirmButton(const CardHost &host)
{
    return button(*host.card(), QStringLiteral("确 认"));
}

void pick(const CardHost &host, const QVector<int> &rows)
{
    for (const int row : rows) {
        QTest::mouseClick(shown<TiTleItem>(*host.card()).at(row), Qt::LeftButton);
    }
}

} // namespace

void TestConferenceCardSelection::theRowsOfASelectionCard_data()
{
    addColumns<Build, QStringList>({"build", "userIds"});
    const QStringList candidates = {QStringLiteral("z1"), QStringLiteral("z2"), QStringLiteral("w1"),
                                    QStringLiteral("w2"), QStringLiteral("w3")};
    QTest::newRow("to create") << Build(buildCreate) << candidates;
    QTest::newRow("to invite") << Build(buildInvite) << candidates;
    QTest::newRow("to invite within the limit, those found at once first")
        << Build(buildLimit) << QStringList{QStringLiteral("l1")} + candidates;
    QTest::newRow("a group without candidates has no row") << Build([](ConferenceMsgStaticWidget &card) {
        ContactInviteMemberDetail detail = inviteDetail();
        detail.duplicateUsers.first().users.clear();
        card.inviteMultiplePerson(detail);
    }) << QStringList(candidates.mid(2));
    QTest::newRow("nobody") << Build([](ConferenceMsgStaticWidget &card) { card.invitePersonLimit({}); })
                            << QStringList();
}

void TestConferenceCardSelection::theRowsOfASelectionCard()
{
    QFETCH(Build, build);
    QFETCH(QStringList, userIds);
    CardHost host(build);
    QStringList shownIds;
    const auto rows = shown<TiTleItem>(*host.card());
    for (const TiTleItem *row : rows) {
        shownIds.append(row->getUserInfo().userId);
        QVERIFY(row->isEnabled());
        QVERIFY(!row->isSelected());
    }
    QCOMPARE(shownIds, userIds);
    QVERIFY(confirmButton(host) != nullptr);
    QCOMPARE(CardHost::actions(), QStringList());
}

void TestConferenceCardSelection::theMeasuresOfASelectionCard()
{
    CardHost host;
    ContactInviteMemberDetail detail = inviteDetail();
    detail.duplicateUsers.removeLast();
    host.card()->inviteMultiplePerson(detail);
    const QLayout *layout = host.card()->layout();
    const auto spaceAt = [layout](int index) {
        return layout->itemAt(index)->spacerItem()->sizeHint().height();
    };
    // The title, two people and the button, each with its spacing.
    QCOMPARE(layout->count(), 8);
    QCOMPARE(spaceAt(1), 10);
    QCOMPARE(spaceAt(3), 2);
    QCOMPARE(spaceAt(5), 2);
    QCOMPARE(spaceAt(6), 8);
    QCOMPARE(layout->itemAt(7)->widget(), confirmButton(host));
    QCOMPARE(confirmButton(host)->minimumHeight(), 36);
    QCOMPARE(confirmButton(host)->maximumHeight(), 36);
    const auto rows = shown<TiTleItem>(*host.card());
    for (const TiTleItem *row : rows) {
        QCOMPARE(row->parentWidget(), host.card());
    }
}

void TestConferenceCardSelection::aCardThatCannotBeConfirmed()
{
    CardHost host;
    host.card()->createMultiplePerson(createdDetail(), false);
    QCOMPARE(shown<TiTleItem>(*host.card()).size(), 5);
    QCOMPARE(confirmButton(host), nullptr);
}

void TestConferenceCardSelection::confirm_data()
{
    addColumns<Build, QVector<int>, QString, int, QString, QString, bool>(
        {"build", "picks", "action", "code", "parameters", "text", "enabled"});

    const QString create = QStringLiteral("Create Conference");
    const QString invite = QStringLiteral("Invite Members");
    const QString z2 = QStringLiteral(R"({"name":"张三","userId":"z2"})");
    const QString w1 = QStringLiteral(R"({"name":"王五","userId":"w1"})");
    const QString l1 = QStringLiteral(R"({"name":"赵六","userId":"l1"})");
    const QString none = QStringLiteral(R"({"members":[]})");
    const QString one = QStringLiteral(R"({"members":[%1]})");
    const QString two = QStringLiteral(R"({"members":[%1,%2]})");
    const QString three = QStringLiteral(R"({"members":[%1,%2,%3]})");
    const auto now = [](QString members) {
        members.chop(1);
        return members + QStringLiteral(R"(,"startTime":0})");
    };

    // The single match joins without being picked: 赵六 is always the last.
    QTest::newRow("create with nobody picked")
        << Build(buildCreate) << QVector<int>{} << create << 0 << now(one.arg(l1))
        << QStringLiteral("好的，已为您发起和赵六的视频会议。") << false;
    QTest::newRow("create with one picked")
        << Build(buildCreate) << QVector<int>{1} << create << 0 << now(two.arg(z2, l1))
        << QStringLiteral("好的，已为您发起与张三和赵六的视频会议。") << false;
    QTest::newRow("create with two picked")
        << Build(buildCreate) << QVector<int>{1, 2} << create << 0 << now(three.arg(z2, w1, l1))
        << QStringLiteral("好的，已为您发起与张三、王五和赵六的视频会议。") << false;
    QTest::newRow("the order is that of the rows, not of the clicks")
        << Build(buildCreate) << QVector<int>{2, 1} << create << 0 << now(three.arg(z2, w1, l1))
        << QStringLiteral("好的，已为您发起与张三、王五和赵六的视频会议。") << false;
    QTest::newRow("creating fails") << Build(buildCreate) << QVector<int>{1} << create << -16020
                                    << now(two.arg(z2, l1)) << QStringLiteral("抱歉无法为您开启视频会议。")
                                    << false;
    QTest::newRow("create with nobody at all") << Build([](ConferenceMsgStaticWidget &card) {
        ContactCreatedConferenceDetail detail = createdDetail();
        detail.inviteDetail.normalUsers.clear();
        card.createMultiplePerson(detail, true);
    }) << QVector<int>{} << create << 0 << now(none)
                                               << QStringLiteral("好的，已为您发起视频会议。") << false;

    QTest::newRow("invite with nobody picked")
        << Build(buildInvite) << QVector<int>{} << invite << 0 << one.arg(l1)
        << QStringLiteral("好的，已为您发起和赵六的视频会议。") << true;
    QTest::newRow("invite with one picked")
        << Build(buildInvite) << QVector<int>{2} << invite << 0 << two.arg(w1, l1)
        << QStringLiteral("好的，已为您发起与王五和赵六的视频会议。") << true;
    QTest::newRow("invite with two picked")
        << Build(buildInvite) << QVector<int>{1, 2} << invite << 0 << three.arg(z2, w1, l1)
        << QStringLiteral("好的，已为您发起与张三、王五和赵六的视频会议。") << true;
    QTest::newRow("inviting fails") << Build(buildInvite) << QVector<int>{1} << invite << -1
                                    << two.arg(z2, l1) << QStringLiteral("抱歉无法为您邀请。") << true;
    QTest::newRow("invite nobody at all") << Build([](ConferenceMsgStaticWidget &card) {
        ContactInviteMemberDetail detail = inviteDetail();
        detail.normalUsers.clear();
        card.inviteMultiplePerson(detail);
    }) << QVector<int>{} << invite << 0 << none
                                          << QStringLiteral("好的，已为您邀请加入会议。") << true;

    // Within the limit even the single match must be picked; it is the first row.
    QTest::newRow("within the limit nobody picked")
        << Build(buildLimit) << QVector<int>{} << invite << 0 << none
        << QStringLiteral("好的，已为您邀请加入会议。") << true;
    QTest::newRow("within the limit one picked")
        << Build(buildLimit) << QVector<int>{0} << invite << 0 << one.arg(l1)
        << QStringLiteral("好的，已为您发起和赵六的视频会议。") << true;
    QTest::newRow("within the limit two picked")
        << Build(buildLimit) << QVector<int>{0, 2} << invite << 0 << two.arg(l1, z2)
        << QStringLiteral("好的，已为您发起赵六和张三的视频会议。") << true;
    QTest::newRow("within the limit three picked, of whom two are named")
        << Build(buildLimit) << QVector<int>{0, 2, 3} << invite << 0 << three.arg(l1, z2, w1)
        << QStringLiteral("好的，已为您发起赵六和张三的视频会议。") << true;
    QTest::newRow("within the limit inviting fails")
        << Build(buildLimit) << QVector<int>{0} << invite << -16006 << one.arg(l1)
        << QStringLiteral("抱歉无法为您邀请。") << true;
}

void TestConferenceCardSelection::confirm()
{
    QFETCH(Build, build);
    QFETCH(QVector<int>, picks);
    QFETCH(QString, action);
    QFETCH(int, code);
    CardHost host(build);
    QVERIFY(host.activate());
    if (code != 0) {
        CardHost::fail(action, code);
    }
    pick(host, picks);
    QTest::mouseClick(confirmButton(host), Qt::LeftButton);

    QCOMPARE(CardHost::actions(), QStringList{action});
    QTEST(CardHost::parameters(), "parameters");
    QFETCH(QString, text);
    QCOMPARE(host.replyTexts(), QStringList{text});
    // The card cannot be confirmed again, but still shows the people.
    QCOMPARE(confirmButton(host), nullptr);
    QVERIFY(!shown<TiTleItem>(*host.card()).isEmpty());
    QTEST(host.card()->isEnabled(), "enabled");
}

void TestConferenceCardSelection::theNamesSaid_data()
{
    addColumns<Build, QString>({"build", "text"});
    QTest::newRow("to create, every pick is named") << Build([](ConferenceMsgStaticWidget &card) {
        ContactCreatedConferenceDetail detail = createdDetail();
        detail.inviteDetail.normalUsers.clear();
        card.createMultiplePerson(detail, true);
    }) << QStringLiteral("好的，已为您发起与张三、张三和王五的视频会议。");
    QTest::newRow("to invite, every pick is named") << Build([](ConferenceMsgStaticWidget &card) {
        ContactInviteMemberDetail detail = inviteDetail();
        detail.normalUsers.clear();
        card.inviteMultiplePerson(detail);
    }) << QStringLiteral("好的，已为您发起与张三、张三和王五的视频会议。");
    QTest::newRow("within the limit, every name once") << Build([](ConferenceMsgStaticWidget &card) {
        ContactInviteMemberDetail detail = inviteDetail();
        detail.normalUsers.clear();
        card.invitePersonLimit(detail);
    }) << QStringLiteral("好的，已为您发起张三和王五的视频会议。");
}

void TestConferenceCardSelection::theNamesSaid()
{
    QFETCH(Build, build);
    QFETCH(QString, text);
    CardHost host(build);
    // Picks both 张三 and the first 王五.
    pick(host, {0, 1, 2});
    QTest::mouseClick(confirmButton(host), Qt::LeftButton);
    QCOMPARE(host.replyTexts(), QStringList{text});
}

void TestConferenceCardSelection::whoIsFoundTwiceIsSentTwice_data()
{
    addColumns<QString, QString, QString>({"firstName", "secondName", "text"});
    QTest::newRow("equal names") << QStringLiteral("a") << QStringLiteral("a")
                                 << QStringLiteral("好的，已为您发起和a的视频会议。");
    QTest::newRow("names that differ in their case")
        << QStringLiteral("a") << QStringLiteral("A") << QStringLiteral("好的，已为您发起a和A的视频会议。");
}

void TestConferenceCardSelection::whoIsFoundTwiceIsSentTwice()
{
    QFETCH(QString, firstName);
    QFETCH(QString, secondName);
    QFETCH(QString, text);
    CardHost host;
    ContactInviteMemberDetail detail;
    detail.normalUsers = {user(firstName, {}, QStringLiteral("1"), {}),
                          user(secondName, {}, QStringLiteral("2"), {})};
    host.card()->invitePersonLimit(detail);
    pick(host, {0, 1});
    QTest::mouseClick(confirmButton(host), Qt::LeftButton);
    QCOMPARE(CardHost::parameters(),
             QStringLiteral(R"({"members":[{"name":"%1","userId":"1"},{"name":"%2","userId":"2"}]})")
                 .arg(firstName, secondName));
    QCOMPARE(host.replyTexts(), QStringList{text});
}

void TestConferenceCardSelection::thePickedPersonIsTakenBack()
{
    CardHost host(buildLimit);
    pick(host, {0, 1, 0});
    QTest::mouseClick(confirmButton(host), Qt::LeftButton);
    QCOMPARE(CardHost::parameters(), QStringLiteral(R"({"members":[{"name":"张三","userId":"z1"}]})"));
}

void TestConferenceCardSelection::theStartOfTheConference_data()
{
    QTest::addColumn<qint64>("start");
    QTest::newRow("now") << Q_INT64_C(0);
    QTest::newRow("scheduled") << thursdayAt(9);
}

void TestConferenceCardSelection::theStartOfTheConference()
{
    QFETCH(qint64, start);
    CardHost host;
    ContactCreatedConferenceDetail detail;
    detail.isSchedule = start > 0;
    detail.scheduleTimeMsecs = start;
    host.card()->createMultiplePerson(detail, true);
    QTest::mouseClick(confirmButton(host), Qt::LeftButton);
    QCOMPARE(CardHost::parameters(), QStringLiteral(R"({"members":[],"startTime":%1})").arg(start));
}

void TestConferenceCardSelection::howManyCanBePicked_data()
{
    addColumns<int, int>({"canInviteNum", "selected"});
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("two") << 2 << 2;
    QTest::newRow("more than there are") << 9 << 6;
    QTest::newRow("all, when the answer does not say") << 0 << 6;
    QTest::newRow("all, for a number that cannot be") << -3 << 6;
}

void TestConferenceCardSelection::howManyCanBePicked()
{
    QFETCH(int, canInviteNum);
    CardHost host;
    ContactInviteMemberDetail detail = inviteDetail();
    detail.canInviteNum = canInviteNum;
    host.card()->invitePersonLimit(detail);
    pick(host, {0, 1, 2, 3, 4, 5});
    int selected = 0;
    const auto rows = shown<TiTleItem>(*host.card());
    for (const TiTleItem *row : rows) {
        selected += row->isSelected() ? 1 : 0;
    }
    QTEST(selected, "selected");
}

void TestConferenceCardSelection::aPickTakenBackMakesRoom()
{
    CardHost host;
    ContactInviteMemberDetail detail = inviteDetail();
    detail.canInviteNum = 1;
    host.card()->invitePersonLimit(detail);
    pick(host, {0, 3});
    QVERIFY(!shown<TiTleItem>(*host.card()).at(3)->isSelected());
    pick(host, {0, 3});
    QVERIFY(!shown<TiTleItem>(*host.card()).at(0)->isSelected());
    QVERIFY(shown<TiTleItem>(*host.card()).at(3)->isSelected());
    // Other cards ignore the limit in the record.
    CardHost other;
    other.card()->inviteMultiplePerson(detail);
    QCOMPARE(other.card()->selectionBudget().remaining(), 65535);
}

QTEST_MAIN(TestConferenceCardSelection)
#include "tst_conferencecardselection.moc"
