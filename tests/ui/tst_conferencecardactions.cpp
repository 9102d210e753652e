// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "customizecombobox.h"
#include "testcolumns.h"
#include "titleitem.h"

#include <lumo/lcombobox.h>
#include <lumo/lspinbox.h>

#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace CardSamples;

/// What the buttons of a card ask for and answer, and what becomes of the card.
class TestConferenceCardActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReplyHasTextsOnly();

    void modify_data();
    void modify();
    void theModifiedValuesAreSentAndShown();
    void modifyIsShownBeforeTheAnswer();
    void anOddMinuteIsKeptWhenSomethingElseIsModified();
    void cancel_data();
    void cancel();
    void cancelDiscardsEdits();
    void inviteGoesOnInTheContacts();
    void actionsWithoutAConferenceDoNothing_data();
    void actionsWithoutAConferenceDoNothing();

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
    void aButtonAsksOnce_data();
    void aButtonAsksOnce();
    void howManyCanBePicked_data();
    void howManyCanBePicked();
    void aPickTakenBackMakesRoom();

    void anExceptionStaysInTheSlot_data();
    void anExceptionStaysInTheSlot();
};

namespace {

using Slot = void (ConferenceMsgStaticWidget::*)();

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

QStringList staticTexts(const QString &start, const QString &duration, const QString &people)
{
    return {QStringLiteral("联系人"),
            QStringLiteral("周例会"),
            QStringLiteral("未开始"),
            QStringLiteral("会议号"),
            QStringLiteral("902 118 34"),
            QStringLiteral("时间"),
            start,
            QStringLiteral("时长"),
            duration,
            QStringLiteral("人数"),
            people,
            QStringLiteral("参与人"),
            QStringLiteral("张三 李四 ")};
}

QStringList unchangedTexts()
{
    return staticTexts(QStringLiteral("3月7日    09:00:00"), QStringLiteral("15分钟"),
                       QStringLiteral("20人"));
}

bool isEditable(const CardHost &host)
{
    return button(*host.card(), QStringLiteral("修 改")) != nullptr;
}

} // namespace

Q_DECLARE_METATYPE(Slot)

void TestConferenceCardActions::aReplyHasTextsOnly()
{
    CardHost host(buildEditable);
    QTest::mouseClick(button(*host.card(), QStringLiteral("取 消")), Qt::LeftButton);
    QCOMPARE(host.replies().size(), 1);
    const Reply reply = host.replies().first();
    QCOMPARE(reply.code, QVariant(0));
    QCOMPARE(reply.displayText, QVariant(QStringLiteral("已为您取消会议。")));
    QCOMPARE(reply.speechText, reply.displayText);
    QCOMPARE(reply.type, 3);
    QCOMPARE(reply.widget, nullptr);
}

void TestConferenceCardActions::modify_data()
{
    addColumns<QString, int, int, QString>({"outcome", "callCode", "loggedCode", "text"});
    const QString failed = QStringLiteral("修改失败，请前往联系人应用修改。");
    QTest::newRow("success") << QStringLiteral("OK") << 0 << 0 << QStringLiteral("会议信息修改成功。");
    QTest::newRow("the application refuses") << QStringLiteral("Not Found") << 0 << -16007 << failed;
    QTest::newRow("the call fails") << QString() << -16020 << -16020 << failed;
}

void TestConferenceCardActions::modify()
{
    QFETCH(QString, outcome);
    QFETCH(int, callCode);
    QFETCH(int, loggedCode);
    QFETCH(QString, text);
    CardHost host(buildEditable);
    if (callCode == 0) {
        CardHost::answer(QStringLiteral("Update Conference"), outcome);
    } else {
        CardHost::fail(QStringLiteral("Update Conference"), callCode);
    }
    named<LSpinBox>(*host.card(), QStringLiteral("人数"))->setValue(7);
    QTest::mouseClick(button(*host.card(), QStringLiteral("修 改")), Qt::LeftButton);

    QCOMPARE(CardHost::actions(), QStringList{QStringLiteral("Update Conference")});
    QCOMPARE(host.replyTexts(), QStringList{text});
    const QString line = QStringLiteral("create conference code: %1").arg(loggedCode);
    QVERIFY2(host.log().contains(QtDebugMsg, line), qPrintable(host.log().lines().join(QLatin1Char('\n'))));
    // What was asked for stays, also when it was refused.
    QVERIFY(!isEditable(host));
    QCOMPARE(texts(*host.card()), staticTexts(QStringLiteral("3月7日    09:00:00"), QStringLiteral("15分钟"),
                                              QStringLiteral("7人")));
    QVERIFY(host.card()->isEnabled());
}

void TestConferenceCardActions::theModifiedValuesAreSentAndShown()
{
    CardHost host;
    QVector<ContactDetailMsg> list = {conference()};
    list.first().isPayingUser = true;
    host.card()->createInviteConference(list);
    const ConferenceMsgStaticWidget &card = *host.card();
    named<CustomizeComboBox>(card, QStringLiteral("日期"))->slotSelectionData(QDate(2024, 12, 31));
    named<LComboBox>(card, QStringLiteral("开始时间"))->setCurrentText(QStringLiteral("23:00"));
    named<LComboBox>(card, QStringLiteral("时长"))->setCurrentText(QStringLiteral("2小时"));
    named<LSpinBox>(card, QStringLiteral("人数"))->setValue(100);
    QTest::mouseClick(button(card, QStringLiteral("修 改")), Qt::LeftButton);

    const qint64 start = QDateTime(QDate(2024, 12, 31), QTime(23, 0)).toMSecsSinceEpoch();
    QCOMPARE(
        CardHost::parameters(),
        QStringLiteral(R"({"conferenceId":"c-1","duration":7200000,"participantLimit":100,"startTime":%1})")
            .arg(start));
    QCOMPARE(texts(card), staticTexts(QStringLiteral("12月31日    23:00:00"), QStringLiteral("120分钟"),
                                      QStringLiteral("100人")));
    // The caller's list is its own.
    QCOMPARE(list.first().participantLimit, 20);
}

void TestConferenceCardActions::modifyIsShownBeforeTheAnswer()
{
    CardHost host(buildEditable);
    QVERIFY(host.activate());
    named<LSpinBox>(*host.card(), QStringLiteral("人数"))->setValue(7);
    QStringList textsAtReply;
    connect(host.card(), &ConferenceMsgStaticWidget::signalSendShowMessgae, &host,
            [&] { textsAtReply = texts(*host.card()); });
    QTest::mouseClick(button(*host.card(), QStringLiteral("修 改")), Qt::LeftButton);
    QVERIFY(textsAtReply.contains(QStringLiteral("7人")));
    // At once in its new size, and with all rows in view.
    QTRY_COMPARE(host.card()->height(), host.card()->sizeHint().height());
    QTRY_COMPARE(host.card()->layout()->count(), 8);
}

void TestConferenceCardActions::anOddMinuteIsKeptWhenSomethingElseIsModified()
{
    CardHost host;
    QVector<ContactDetailMsg> list = {conference()};
    list.first().startTime = thursdayAt(9, 30);
    host.card()->createInviteConference(list);
    named<LSpinBox>(*host.card(), QStringLiteral("人数"))->setValue(7);
    QTest::mouseClick(button(*host.card(), QStringLiteral("修 改")), Qt::LeftButton);
    QVERIFY2(CardHost::parameters().contains(QStringLiteral("\"startTime\":%1}").arg(thursdayAt(9, 30))),
             qPrintable(CardHost::parameters()));
    QVERIFY(texts(*host.card()).contains(QStringLiteral("3月7日    09:30:00")));
}

void TestConferenceCardActions::cancel_data()
{
    addColumns<QString, int, int, QString>({"outcome", "callCode", "loggedCode", "text"});
    const QString failed = QStringLiteral("会议取消失败，请前往联系人应用取消。");
    QTest::newRow("success") << QStringLiteral("OK") << 0 << 0 << QStringLiteral("已为您取消会议。");
    QTest::newRow("the application refuses") << QStringLiteral("Not Found") << 0 << -16011 << failed;
    QTest::newRow("the call fails") << QString() << -5 << -5 << failed;
}

void TestConferenceCardActions::cancel()
{
    QFETCH(QString, outcome);
    QFETCH(int, callCode);
    QFETCH(int, loggedCode);
    QFETCH(QString, text);
    CardHost host(buildEditable);
    if (callCode == 0) {
        CardHost::answer(QStringLiteral("Delete Conference"), outcome);
    } else {
        CardHost::fail(QStringLiteral("Delete Conference"), callCode);
    }
    QTest::mouseClick(button(*host.card(), QStringLiteral("取 消")), Qt::LeftButton);

    QCOMPARE(CardHost::actions(), QStringList{QStringLiteral("Delete Conference")});
    QVERIFY(CardHost::parameters().contains(QStringLiteral("\"c-1\"")));
    QCOMPARE(host.replyTexts(), QStringList{text});
    const QString line = QStringLiteral("Cancle conference code: %1").arg(loggedCode);
    QVERIFY2(host.log().contains(QtDebugMsg, line), qPrintable(host.log().lines().join(QLatin1Char('\n'))));
    QVERIFY(!isEditable(host));
    QCOMPARE(texts(*host.card()), unchangedTexts());
    QVERIFY(!host.card()->isEnabled());
    QTest::mouseClick(host.card(), Qt::LeftButton);
    QCOMPARE(CardHost::actions().size(), 1);
}

void TestConferenceCardActions::cancelDiscardsEdits()
{
    CardHost host(buildEditable);
    named<LSpinBox>(*host.card(), QStringLiteral("人数"))->setValue(7);
    QTest::mouseClick(button(*host.card(), QStringLiteral("取 消")), Qt::LeftButton);
    QCOMPARE(texts(*host.card()), unchangedTexts());
}

void TestConferenceCardActions::inviteGoesOnInTheContacts()
{
    CardHost host(buildEditable);
    QMetaObject::invokeMethod(host.card(), "slotInviteConference");
    QCOMPARE(CardHost::actions(),
             (QStringList{QStringLiteral("Update Conference"), QStringLiteral("Open Conference List")}));
    QCOMPARE(host.replyTexts(), QStringList{QStringLiteral("会议信息修改成功。")});
}

void TestConferenceCardActions::actionsWithoutAConferenceDoNothing_data()
{
    QTest::addColumn<Slot>("slot");
    QTest::newRow("modify") << &ConferenceMsgStaticWidget::slotModifyConference;
    QTest::newRow("cancel") << &ConferenceMsgStaticWidget::slotCancleConference;
}

void TestConferenceCardActions::actionsWithoutAConferenceDoNothing()
{
    QFETCH(Slot, slot);
    CardHost host;
    QVector<ContactDetailMsg> none;
    host.card()->createInviteConference(none);
    (host.card()->*slot)();
    QCOMPARE(CardHost::actions(), QStringList());
    QVERIFY(host.replies().isEmpty());
    QVERIFY(host.card()->isEnabled());
}

void TestConferenceCardActions::theRowsOfASelectionCard_data()
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

void TestConferenceCardActions::theRowsOfASelectionCard()
{
    QFETCH(Build, build);
    QFETCH(QStringList, userIds);
    CardHost host(build);
    QStringList shownIds;
    for (const TiTleItem *row : shown<TiTleItem>(*host.card())) {
        shownIds.append(row->getUserInfo().userId);
        QVERIFY(row->isEnabled());
        QVERIFY(!row->isSelected());
    }
    QCOMPARE(shownIds, userIds);
    QVERIFY(confirmButton(host) != nullptr);
    QCOMPARE(CardHost::actions(), QStringList());
}

void TestConferenceCardActions::theMeasuresOfASelectionCard()
{
    CardHost host;
    ContactInviteMemberDetail detail = inviteDetail();
    detail.duplicateUsers.removeLast();
    host.card()->inviteMultiplePerson(detail);
    const QLayout *layout = host.card()->layout();
    const auto spaceAt = [layout](int index) {
        return layout->itemAt(index)->spacerItem()->sizeHint().height();
    };
    // The title, two people with their spaces, and the button with its own.
    QCOMPARE(layout->count(), 8);
    QCOMPARE(spaceAt(1), 10);
    QCOMPARE(spaceAt(3), 2);
    QCOMPARE(spaceAt(5), 2);
    QCOMPARE(spaceAt(6), 8);
    QCOMPARE(layout->itemAt(7)->widget(), confirmButton(host));
    QCOMPARE(confirmButton(host)->minimumHeight(), 36);
    QCOMPARE(confirmButton(host)->maximumHeight(), 36);
    for (const TiTleItem *row : shown<TiTleItem>(*host.card())) {
        QCOMPARE(row->parentWidget(), host.card());
    }
}

void TestConferenceCardActions::aCardThatCannotBeConfirmed()
{
    CardHost host;
    host.card()->createMultiplePerson(createdDetail(), false);
    QCOMPARE(shown<TiTleItem>(*host.card()).size(), 5);
    QCOMPARE(confirmButton(host), nullptr);
}

void TestConferenceCardActions::confirm_data()
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

    // Who was found at once joins: 赵六 is always the last.
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

    // Within the limit who was found at once has to be picked, too: the first row.
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

void TestConferenceCardActions::confirm()
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
    // It cannot be confirmed again; the people stay to be seen.
    QCOMPARE(confirmButton(host), nullptr);
    QVERIFY(!shown<TiTleItem>(*host.card()).isEmpty());
    QTEST(host.card()->isEnabled(), "enabled");
}

void TestConferenceCardActions::theNamesSaid_data()
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

void TestConferenceCardActions::theNamesSaid()
{
    QFETCH(Build, build);
    QFETCH(QString, text);
    CardHost host(build);
    // Both 张三 and the first 王五.
    pick(host, {0, 1, 2});
    QTest::mouseClick(confirmButton(host), Qt::LeftButton);
    QCOMPARE(host.replyTexts(), QStringList{text});
}

void TestConferenceCardActions::whoIsFoundTwiceIsSentTwice_data()
{
    addColumns<QString, QString, QString>({"firstName", "secondName", "text"});
    QTest::newRow("equal names") << QStringLiteral("a") << QStringLiteral("a")
                                 << QStringLiteral("好的，已为您发起和a的视频会议。");
    QTest::newRow("names that differ in their case")
        << QStringLiteral("a") << QStringLiteral("A") << QStringLiteral("好的，已为您发起a和A的视频会议。");
}

void TestConferenceCardActions::whoIsFoundTwiceIsSentTwice()
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

void TestConferenceCardActions::thePickedPersonIsTakenBack()
{
    CardHost host(buildLimit);
    pick(host, {0, 1, 0});
    QTest::mouseClick(confirmButton(host), Qt::LeftButton);
    QCOMPARE(CardHost::parameters(), QStringLiteral(R"({"members":[{"name":"张三","userId":"z1"}]})"));
}

void TestConferenceCardActions::theStartOfTheConference_data()
{
    QTest::addColumn<qint64>("start");
    QTest::newRow("now") << Q_INT64_C(0);
    QTest::newRow("scheduled") << thursdayAt(9);
}

void TestConferenceCardActions::theStartOfTheConference()
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

void TestConferenceCardActions::aButtonAsksOnce_data()
{
    addColumns<Build, QString>({"build", "text"});
    QTest::newRow("cancel") << Build(buildEditable) << QStringLiteral("取 消");
    QTest::newRow("create") << Build(buildCreate) << QStringLiteral("确 认");
    QTest::newRow("invite") << Build(buildInvite) << QStringLiteral("确 认");
    QTest::newRow("within the limit") << Build(buildLimit) << QStringLiteral("确 认");
}

void TestConferenceCardActions::aButtonAsksOnce()
{
    QFETCH(Build, build);
    QFETCH(QString, text);
    CardHost host(build);
    const int rows = shown<TiTleItem>(*host.card()).size();
    QPushButton *target = button(*host.card(), text);
    const auto clickAgain = [target] {
        Q_EMIT target->clicked();
        QTest::keyClick(target, Qt::Key_Return);
        QTest::mouseClick(target, Qt::LeftButton);
    };
    // A library that lets events through while it waits, and a listener that is quick.
    ScriptedAbility::instance().duringNextRequest(clickAgain);
    connect(host.card(), &ConferenceMsgStaticWidget::signalSendShowMessgae, &host, clickAgain);
    QTest::mouseClick(target, Qt::LeftButton);
    QCOMPARE(CardHost::actions().size(), 1);
    QCOMPARE(host.replies().size(), 1);
    QCOMPARE(shown<TiTleItem>(*host.card()).size(), rows);
}

void TestConferenceCardActions::howManyCanBePicked_data()
{
    addColumns<int, int>({"canInviteNum", "selected"});
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("two") << 2 << 2;
    QTest::newRow("more than there are") << 9 << 6;
    QTest::newRow("all, when the answer does not say") << 0 << 6;
    QTest::newRow("all, for a number that cannot be") << -3 << 6;
}

void TestConferenceCardActions::howManyCanBePicked()
{
    QFETCH(int, canInviteNum);
    CardHost host;
    ContactInviteMemberDetail detail = inviteDetail();
    detail.canInviteNum = canInviteNum;
    host.card()->invitePersonLimit(detail);
    pick(host, {0, 1, 2, 3, 4, 5});
    int selected = 0;
    for (const TiTleItem *row : shown<TiTleItem>(*host.card())) {
        selected += row->isSelected() ? 1 : 0;
    }
    QTEST(selected, "selected");
}

void TestConferenceCardActions::aPickTakenBackMakesRoom()
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
    // The other cards have no such limit, whatever the record says.
    CardHost other;
    other.card()->inviteMultiplePerson(detail);
    QCOMPARE(other.card()->selectionBudget().remaining(), 65535);
}

void TestConferenceCardActions::anExceptionStaysInTheSlot_data()
{
    addColumns<Build, Slot, QString, QString>({"build", "slot", "action", "text"});
    QTest::newRow("modify") << Build(buildEditable) << &ConferenceMsgStaticWidget::slotModifyConference
                            << QStringLiteral("Update Conference")
                            << QStringLiteral("修改失败，请前往联系人应用修改。");
    QTest::newRow("cancel") << Build(buildEditable) << &ConferenceMsgStaticWidget::slotCancleConference
                            << QStringLiteral("Delete Conference")
                            << QStringLiteral("会议取消失败，请前往联系人应用取消。");
    QTest::newRow("create") << Build(buildCreate) << &ConferenceMsgStaticWidget::slotMultipleSelectBtn
                            << QStringLiteral("Create Conference")
                            << QStringLiteral("抱歉无法为您开启视频会议。");
    QTest::newRow("invite") << Build(buildInvite) << &ConferenceMsgStaticWidget::slotInviteMultipleSelectBtn
                            << QStringLiteral("Invite Members") << QStringLiteral("抱歉无法为您邀请。");
    QTest::newRow("invite within the limit")
        << Build(buildLimit) << &ConferenceMsgStaticWidget::slotReserverConferencepersonLimit
        << QStringLiteral("Invite Members") << QStringLiteral("抱歉无法为您邀请。");
    QTest::newRow("open the contacts") << Build(buildInvite) << &ConferenceMsgStaticWidget::openContactApp
                                       << QStringLiteral("Open Conference List") << QString();
}

void TestConferenceCardActions::anExceptionStaysInTheSlot()
{
    QFETCH(Build, build);
    QFETCH(Slot, slot);
    QFETCH(QString, action);
    QFETCH(QString, text);
    CardHost host(build);
    ScriptedAbility::instance().throwFromNextRequest("no memory left");
    host.log().expect(QtWarningMsg,
                      QStringLiteral("The contact ability failed: \"%1\" no memory left").arg(action));
    (host.card()->*slot)();
    QCOMPARE(host.replyTexts(), text.isEmpty() ? QStringList() : QStringList{text});
    QCOMPARE(ScriptedAbility::instance().alive(), 0);
}

QTEST_MAIN(TestConferenceCardActions)
#include "tst_conferencecardactions.moc"
