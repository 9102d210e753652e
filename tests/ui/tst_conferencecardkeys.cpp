// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "testcolumns.h"

#include <lumo/lcombobox.h>
#include <lumo/lcommandlinkbutton.h>

#include <QAbstractItemView>
#include <QPushButton>
#include <QtTest>

using namespace CardSamples;

/// What keys do on a card's buttons and combo boxes.
class TestConferenceCardKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnClicksAButtonOnce_data();
    void returnClicksAButtonOnce();
    void aHeldReturnClicksOnce();
    void returnOnADisabledButtonDoesNothing();
    void returnOpensTheListOfABox_data();
    void returnOpensTheListOfABox();
    void otherKeysDoNotClick();
    void theFilterSwallowsNothing();
    void everythingIsReachedByTab();
};

void TestConferenceCardKeys::returnClicksAButtonOnce_data()
{
    addColumns<Build, QString, QString>({"build", "text", "action"});
    const QString confirm = QStringLiteral("确 认");
    QTest::newRow("cancel") << Build(buildEditable) << QStringLiteral("取 消")
                            << QStringLiteral("Delete Conference");
    QTest::newRow("modify") << Build([](ConferenceMsgStaticWidget &card) {
        buildEditable(card);
        named<LComboBox>(card, QStringLiteral("时长"))->setCurrentIndex(0);
    }) << QStringLiteral("修 改")
                            << QStringLiteral("Update Conference");
    QTest::newRow("confirm who is in the conference")
        << Build([](ConferenceMsgStaticWidget &card) { card.createMultiplePerson(createdDetail(), true); })
        << confirm << QStringLiteral("Create Conference");
    QTest::newRow("confirm who is invited")
        << Build([](ConferenceMsgStaticWidget &card) { card.inviteMultiplePerson(inviteDetail()); })
        << confirm << QStringLiteral("Invite Members");
    QTest::newRow("confirm who is invited within the limit")
        << Build([](ConferenceMsgStaticWidget &card) { card.invitePersonLimit(inviteDetail()); }) << confirm
        << QStringLiteral("Invite Members");
    QTest::newRow("the footer") << Build([](ConferenceMsgStaticWidget &card) {
        card.multipleInit(conferences(4));
    }) << QStringLiteral("在“联系人”中查看所有4个结果…")
                                << QStringLiteral("Open Conference List");
}

void TestConferenceCardKeys::returnClicksAButtonOnce()
{
    QFETCH(Build, build);
    QFETCH(QString, text);
    QFETCH(QString, action);
    struct Press
    {
        const char *name;
        void (*press)(QWidget *);
    };
    const Press presses[] = {
        {"Return",
         [](QWidget *widget) {
             QTest::keyClick(widget->window()->windowHandle(), Qt::Key_Return);
         }},
        {"Enter",
         [](QWidget *widget) {
             QTest::keyClick(widget->window()->windowHandle(), Qt::Key_Enter);
         }},
        {"Space",
         [](QWidget *widget) {
             QTest::keyClick(widget->window()->windowHandle(), Qt::Key_Space);
         }},
        {"a click",
         [](QWidget *widget) {
             QTest::mouseClick(widget, Qt::LeftButton);
         }},
    };
    for (const Press &press : presses) {
        CardHost host(build);
        QVERIFY(host.activate());
        QPushButton *target = button(*host.card(), text);
        QVERIFY(target != nullptr);
        target->setFocus(Qt::TabFocusReason);
        QVERIFY(target->hasFocus());
        press.press(target);
        QVERIFY2(CardHost::actions() == QStringList{action},
                 qPrintable(QLatin1String(press.name) + QLatin1String(": ") +
                            CardHost::actions().join(QLatin1Char(','))));
        // No press may close the dialog.
        QVERIFY(host.isVisible());
    }
}

void TestConferenceCardKeys::aHeldReturnClicksOnce()
{
    CardHost host;
    host.card()->multipleInit(conferences(4));
    QVERIFY(host.activate());
    QPushButton *footer = shown<LCommandLinkButton>(*host.card()).constFirst();
    footer->setFocus();
    QTest::keyPress(footer, Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
        QApplication::sendEvent(footer, &press);
    }
    QCOMPARE(CardHost::actions(), QStringList{QStringLiteral("Open Conference List")});
}

void TestConferenceCardKeys::returnOnADisabledButtonDoesNothing()
{
    CardHost host(buildEditable);
    QVERIFY(host.activate());
    QPushButton *modify = button(*host.card(), QStringLiteral("修 改"));
    QVERIFY(!modify->isEnabled());
    button(*host.card(), QStringLiteral("取 消"))->setFocus();
    QTest::keyClick(modify, Qt::Key_Return);
    QTest::mouseClick(modify, Qt::LeftButton);
    QCOMPARE(CardHost::actions(), QStringList());
    QVERIFY(button(*host.card(), QStringLiteral("修 改")) == modify);
}

void TestConferenceCardKeys::returnOpensTheListOfABox_data()
{
    addColumns<QString, int>({"name", "key"});
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::addRow("the hours, key %d", int(key)) << QStringLiteral("开始时间") << int(key);
        QTest::addRow("the durations, key %d", int(key)) << QStringLiteral("时长") << int(key);
    }
}

void TestConferenceCardKeys::returnOpensTheListOfABox()
{
    QFETCH(QString, name);
    QFETCH(int, key);
    CardHost host(buildEditable);
    QVERIFY(host.activate());
    auto *box = named<LComboBox>(*host.card(), name);
    box->setFocus(Qt::TabFocusReason);
    QTest::keyPress(box, static_cast<Qt::Key>(key));
    QVERIFY(box->view()->isVisible());
    box->hidePopup();
    // A box with another window title is not affected.
    box->setWindowTitle(QStringLiteral("other"));
    QTest::keyPress(box, static_cast<Qt::Key>(key));
    QVERIFY(!box->view()->isVisible());
}

void TestConferenceCardKeys::otherKeysDoNotClick()
{
    CardHost host(buildEditable);
    QVERIFY(host.activate());
    QPushButton *cancel = button(*host.card(), QStringLiteral("取 消"));
    cancel->setFocus();
    for (const auto key : {Qt::Key_A, Qt::Key_Down, Qt::Key_Escape}) {
        QTest::keyPress(cancel, key);
    }
    QTest::keyRelease(cancel, Qt::Key_Return);
    QCOMPARE(CardHost::actions(), QStringList());
}

void TestConferenceCardKeys::theFilterSwallowsNothing()
{
    CardHost host(buildEditable);
    QPushButton *cancel = button(*host.card(), QStringLiteral("取 消"));
    auto *hours = named<LComboBox>(*host.card(), QStringLiteral("开始时间"));
    for (QObject *watched : {static_cast<QObject *>(cancel), static_cast<QObject *>(hours)}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, {});
        QVERIFY(!static_cast<QObject *>(host.card())->eventFilter(watched, &press));
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, {});
        QVERIFY(!static_cast<QObject *>(host.card())->eventFilter(watched, &letter));
    }
}

void TestConferenceCardKeys::everythingIsReachedByTab()
{
    CardHost host(buildEditable);
    QVERIFY(host.activate());
    named<LComboBox>(*host.card(), QStringLiteral("时长"))->setCurrentIndex(0);
    host.card()->setFocus(Qt::TabFocusReason);
    QStringList names;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(host.windowHandle(), Qt::Key_Tab);
        QVERIFY(host.focusWidget() != nullptr);
        auto *pushButton = qobject_cast<QPushButton *>(host.focusWidget());
        names.append(pushButton != nullptr ? pushButton->text() : host.focusWidget()->accessibleName());
    }
    QCOMPARE(names, (QStringList{QStringLiteral("日期"), QStringLiteral("开始时间"), QStringLiteral("时长"),
                                 QStringLiteral("人数"), QStringLiteral("取 消"), QStringLiteral("修 改")}));
}

QTEST_MAIN(TestConferenceCardKeys)
#include "tst_conferencecardkeys.moc"
