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

#include <QLayout>
#include <QPushButton>
#include <QtTest>

using namespace CardSamples;

/// What a card's buttons request and reply, and what the card shows afterwards.
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

    void aButtonAsksOnce_data();
    void aButtonAsksOnce();

    void anExceptionStaysInTheSlot_data();
    void anExceptionStaysInTheSlot();
};

namespace {

using Slot = void (ConferenceMsgStaticWidget::*)();

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

/// Adds the outcomes of a request, with what is logged and said in each case.
void addOutcomes(const QString &done, int refusedCode, int failedCode, const QString &failed)
{
    addColumns<QString, int, int, QString>({"outcome", "callCode", "loggedCode", "text"});
    addRow("success", "OK", 0, 0, done);
    addRow("the application refuses", "Not Found", 0, refusedCode, failed);
    addRow("the call fails", "", failedCode, failedCode, failed);
}

/// Clicks the button @p text. Checks that it requests @p action, which has the row's outcome, logs @p line
/// with the code, and replies with the row's text.
void clickAndCheck(CardHost &host, const QString &text, const QString &action, const QString &line)
{
    QFETCH(QString, outcome);
    QFETCH(int, callCode);
    QFETCH(int, loggedCode);
    if (callCode == 0) {
        CardHost::answer(action, outcome);
    } else {
        CardHost::fail(action, callCode);
    }
    QTest::mouseClick(button(*host.card(), text), Qt::LeftButton);
    QCOMPARE(CardHost::actions(), QStringList{action});
    QTEST(host.replyTexts().join(QLatin1Char('|')), "text");
    QVERIFY2(host.log().contains(QtDebugMsg, line.arg(loggedCode)),
             qPrintable(host.log().lines().join(QLatin1Char('\n'))));
}

} // namespace

Q_DECLARE_METATYPE(Slot)

void TestConferenceCardActions::aReplyHasTextsOnly()
{
    CardHost host(buildEditable);
    QTest::mouseClick(button(*host.card(), QStringLiteral("取 消")), Qt::LeftButton);
    QCOMPARE(host.replies().size(), 1);
    const Reply reply = host.replies().constFirst();
    QCOMPARE(reply.code, QVariant(0));
    QCOMPARE(reply.displayText, QVariant(QStringLiteral("已为您取消会议。")));
    QCOMPARE(reply.speechText, reply.displayText);
    QCOMPARE(reply.type, 3);
    QCOMPARE(reply.widget, nullptr);
}

void TestConferenceCardActions::modify_data()
{
    addOutcomes(QStringLiteral("会议信息修改成功。"), -16007, -16020,
                QStringLiteral("修改失败，请前往联系人应用修改。"));
}

void TestConferenceCardActions::modify()
{
    CardHost host(buildEditable);
    named<LSpinBox>(*host.card(), QStringLiteral("人数"))->setValue(7);
    clickAndCheck(host, QStringLiteral("修 改"), QStringLiteral("Update Conference"),
                  QStringLiteral("create conference code: %1"));
    // The edited values stay, even if the change was refused.
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
    // The caller's list is untouched.
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
    // The card takes its new size, with all rows.
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
    addOutcomes(QStringLiteral("已为您取消会议。"), -16011, -5,
                QStringLiteral("会议取消失败，请前往联系人应用取消。"));
}

void TestConferenceCardActions::cancel()
{
    CardHost host(buildEditable);
    clickAndCheck(host, QStringLiteral("取 消"), QStringLiteral("Delete Conference"),
                  QStringLiteral("Cancle conference code: %1"));
    QVERIFY(CardHost::parameters().contains(QStringLiteral("\"c-1\"")));
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
    // Clicks again while the library waits for the answer, and while the reply is delivered.
    ScriptedAbility::instance().duringNextRequest(clickAgain);
    connect(host.card(), &ConferenceMsgStaticWidget::signalSendShowMessgae, &host, clickAgain);
    QTest::mouseClick(target, Qt::LeftButton);
    QCOMPARE(CardHost::actions().size(), 1);
    QCOMPARE(host.replies().size(), 1);
    QCOMPARE(shown<TiTleItem>(*host.card()).size(), rows);
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
