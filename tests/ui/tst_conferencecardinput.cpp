// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "testcolumns.h"
#include "titleitem.h"

#include <lumo/lcombobox.h>
#include <lumo/lcommandlinkbutton.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace CardSamples;

/// What a card does on keyboard and mouse, driven as people drive it.
class TestConferenceCardInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickOpensTheContacts_data();
    void aClickOpensTheContacts();
    void aDisabledCardOpensNothing();
    void aKeyOpensTheContacts_data();
    void aKeyOpensTheContacts();
    void aHeldKeyOpensTheContactsOnce();
    void aKeyForAControlIsNotOneForTheCard();
    void aClickOnAControlIsNotOneOnTheCard_data();
    void aClickOnAControlIsNotOneOnTheCard();
    void aClickOnACandidateSelectsOnly();

    void theFrameIsForTheTabKey_data();
    void theFrameIsForTheTabKey();

    void returnClicksAButtonOnce_data();
    void returnClicksAButtonOnce();
    void aHeldReturnClicksOnce();
    void returnOnADisabledButtonDoesNothing();
    void returnOpensTheListOfABox_data();
    void returnOpensTheListOfABox();
    void otherKeysDoNotClick();
    void theFilterSwallowsNothing();
    void theKeyThatPressedAButtonDoesNotOpenTheContacts();
    void everythingIsReachedByTab();
};

namespace {

QStringList once(const char *action)
{
    return {QString::fromLatin1(action)};
}

const char OpenList[] = "Open Conference List";

bool hasBlueFrame(QWidget &card)
{
    const QImage image = card.grab().toImage();
    const QColor edge = image.pixelColor(image.width() / 2, 0);
    return edge.blue() > 200 && edge.red() < 60;
}

} // namespace

Q_DECLARE_METATYPE(Qt::FocusReason)

void TestConferenceCardInput::aClickOpensTheContacts_data()
{
    QTest::addColumn<QString>("label");
    QTest::newRow("on the card itself") << QString();
    QTest::newRow("on a text") << QStringLiteral("周例会");
    QTest::newRow("on a caption") << QStringLiteral("时长");
}

void TestConferenceCardInput::aClickOpensTheContacts()
{
    QFETCH(QString, label);
    CardHost host;
    host.card()->singleInit({conference()});
    QVERIFY(host.activate());
    QWidget *target = host.card();
    for (QLabel *candidate : shown<QLabel>(*host.card())) {
        if (!label.isEmpty() && candidate->text() == label) {
            target = candidate;
        }
    }
    QTest::mousePress(target, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(CardHost::actions(), QStringList());
    QTest::mouseRelease(target, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(CardHost::actions(), once(OpenList));
    QCOMPARE(CardHost::parameters(), QString());
    QVERIFY(host.replies().isEmpty());
}

void TestConferenceCardInput::aDisabledCardOpensNothing()
{
    CardHost host;
    host.card()->singleInit({conference()});
    QVERIFY(host.activate());
    host.card()->setFocus();
    host.card()->setEnabled(false);
    QTest::mouseClick(host.card(), Qt::LeftButton);
    QTest::keyClick(host.card(), Qt::Key_Return);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton, {});
    QApplication::sendEvent(host.card(), &release);
    QCOMPARE(CardHost::actions(), QStringList());
}

void TestConferenceCardInput::aKeyOpensTheContacts_data()
{
    addColumns<int, bool>({"key", "opens"});
    QTest::newRow("Return") << int(Qt::Key_Return) << true;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << true;
    QTest::newRow("Space") << int(Qt::Key_Space) << true;
    QTest::newRow("a letter") << int(Qt::Key_A) << false;
    QTest::newRow("an arrow") << int(Qt::Key_Down) << false;
}

void TestConferenceCardInput::aKeyOpensTheContacts()
{
    QFETCH(int, key);
    QFETCH(bool, opens);
    CardHost host;
    host.card()->singleInit({conference()});
    QVERIFY(host.activate());
    host.card()->setFocus(Qt::TabFocusReason);
    QVERIFY(host.card()->hasFocus());
    QTest::keyPress(host.card(), static_cast<Qt::Key>(key));
    QCOMPARE(CardHost::actions(), QStringList());
    QTest::keyRelease(host.card(), static_cast<Qt::Key>(key));
    QCOMPARE(CardHost::actions(), opens ? once(OpenList) : QStringList());
    QVERIFY(host.isVisible());
}

void TestConferenceCardInput::aHeldKeyOpensTheContactsOnce()
{
    CardHost host;
    host.card()->singleInit({conference()});
    QVERIFY(host.activate());
    host.card()->setFocus(Qt::TabFocusReason);
    QTest::keyPress(host.card(), Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, {}, QString(), true);
        QApplication::sendEvent(host.card(), &release);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
        QApplication::sendEvent(host.card(), &press);
    }
    QCOMPARE(CardHost::actions(), QStringList());
    QTest::keyRelease(host.card(), Qt::Key_Return);
    QCOMPARE(CardHost::actions(), once(OpenList));
}

void TestConferenceCardInput::aKeyForAControlIsNotOneForTheCard()
{
    CardHost host(buildEditable);
    QVERIFY(host.activate());
    auto *people = named<QWidget>(*host.card(), QStringLiteral("人数"));
    people->setFocus(Qt::TabFocusReason);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        QTest::keyRelease(people, key);
    }
    QCOMPARE(CardHost::actions(), QStringList());
}

void TestConferenceCardInput::aClickOnAControlIsNotOneOnTheCard_data()
{
    QTest::addColumn<int>("mouseButton");
    QTest::newRow("with the left button") << int(Qt::LeftButton);
    QTest::newRow("with the right button") << int(Qt::RightButton);
}

void TestConferenceCardInput::aClickOnAControlIsNotOneOnTheCard()
{
    QFETCH(int, mouseButton);
    CardHost host(buildEditable);
    QVERIFY(host.activate());
    // Disabled: a click on it would otherwise fall through.
    QTest::mouseClick(button(*host.card(), QStringLiteral("修 改")),
                      static_cast<Qt::MouseButton>(mouseButton));
    auto *box = named<LComboBox>(*host.card(), QStringLiteral("时长"));
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), static_cast<Qt::MouseButton>(mouseButton),
                        Qt::NoButton, {});
    QApplication::sendEvent(box, &release);
    if (mouseButton == Qt::RightButton) {
        QTest::mouseClick(button(*host.card(), QStringLiteral("取 消")), Qt::RightButton);
    }
    QCOMPARE(CardHost::actions(), QStringList());
}

void TestConferenceCardInput::aClickOnACandidateSelectsOnly()
{
    CardHost host;
    host.card()->inviteMultiplePerson(inviteDetail());
    QVERIFY(host.activate());
    TiTleItem *row = shown<TiTleItem>(*host.card()).first();
    QTest::mouseClick(row, Qt::LeftButton);
    QVERIFY(row->isSelected());
    QCOMPARE(CardHost::actions(), QStringList());
}

void TestConferenceCardInput::theFrameIsForTheTabKey_data()
{
    addColumns<Qt::FocusReason, bool>({"reason", "framed"});
    QTest::newRow("Tab") << Qt::TabFocusReason << true;
    QTest::newRow("Tab backwards") << Qt::BacktabFocusReason << false;
    QTest::newRow("the mouse") << Qt::MouseFocusReason << false;
    QTest::newRow("anything else") << Qt::OtherFocusReason << false;
}

void TestConferenceCardInput::theFrameIsForTheTabKey()
{
    QFETCH(Qt::FocusReason, reason);
    CardHost host(buildEditable);
    QVERIFY(host.activate());
    QWidget *control = named<QWidget>(*host.card(), QStringLiteral("人数"));
    control->setFocus();
    QVERIFY(!hasBlueFrame(*host.card()));
    host.log().clear();
    host.card()->setFocus(reason);
    QVERIFY(host.card()->hasFocus());
    QCOMPARE(host.log().texts(QtDebugMsg), QStringList{QStringLiteral("focusInEvent")});
    QTEST(hasBlueFrame(*host.card()), "framed");
    control->setFocus();
    QVERIFY(!hasBlueFrame(*host.card()));
}

void TestConferenceCardInput::returnClicksAButtonOnce_data()
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

void TestConferenceCardInput::returnClicksAButtonOnce()
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
        // A dialog's default button would have closed it.
        QVERIFY(host.isVisible());
    }
}

void TestConferenceCardInput::aHeldReturnClicksOnce()
{
    CardHost host;
    host.card()->multipleInit(conferences(4));
    QVERIFY(host.activate());
    QPushButton *footer = shown<LCommandLinkButton>(*host.card()).first();
    footer->setFocus();
    QTest::keyPress(footer, Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
        QApplication::sendEvent(footer, &press);
    }
    QCOMPARE(CardHost::actions(), once(OpenList));
}

void TestConferenceCardInput::returnOnADisabledButtonDoesNothing()
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

void TestConferenceCardInput::returnOpensTheListOfABox_data()
{
    addColumns<QString, int>({"name", "key"});
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::addRow("the hours, key %d", int(key)) << QStringLiteral("开始时间") << int(key);
        QTest::addRow("the durations, key %d", int(key)) << QStringLiteral("时长") << int(key);
    }
}

void TestConferenceCardInput::returnOpensTheListOfABox()
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
    // Another title is another box.
    box->setWindowTitle(QStringLiteral("other"));
    QTest::keyPress(box, static_cast<Qt::Key>(key));
    QVERIFY(!box->view()->isVisible());
}

void TestConferenceCardInput::otherKeysDoNotClick()
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

void TestConferenceCardInput::theFilterSwallowsNothing()
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

void TestConferenceCardInput::theKeyThatPressedAButtonDoesNotOpenTheContacts()
{
    CardHost host;
    host.card()->inviteMultiplePerson(inviteDetail());
    QVERIFY(host.activate());
    button(*host.card(), QStringLiteral("确 认"))->setFocus(Qt::TabFocusReason);
    QTest::keyPress(host.windowHandle(), Qt::Key_Return);
    // The button is gone, and the card has taken the focus over: the key is let go there.
    QVERIFY(host.card()->hasFocus());
    QTest::keyRelease(host.windowHandle(), Qt::Key_Return);
    QCOMPARE(CardHost::actions(), once("Invite Members"));
    // The next key is meant for the card.
    QTest::keyClick(host.windowHandle(), Qt::Key_Return);
    QCOMPARE(CardHost::actions().last(), QString::fromLatin1(OpenList));
}

void TestConferenceCardInput::everythingIsReachedByTab()
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

QTEST_MAIN(TestConferenceCardInput)
#include "tst_conferencecardinput.moc"
