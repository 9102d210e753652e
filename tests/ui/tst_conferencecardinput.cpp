// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "confirmkeys.h"
#include "testcolumns.h"
#include "titleitem.h"

#include <lumo/lcombobox.h>

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace CardSamples;

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

/// What clicks and keys on the card itself do.
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
    void theKeyThatPressedAButtonDoesNotOpenTheContacts();
};

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
    const auto labels = shown<QLabel>(*host.card());
    for (QLabel *candidate : labels) {
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
    addConfirmKeys(true);
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
    // This button is disabled; Qt would pass the click on to the card.
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
    TiTleItem *row = shown<TiTleItem>(*host.card()).constFirst();
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

void TestConferenceCardInput::theKeyThatPressedAButtonDoesNotOpenTheContacts()
{
    CardHost host;
    host.card()->inviteMultiplePerson(inviteDetail());
    QVERIFY(host.activate());
    button(*host.card(), QStringLiteral("确 认"))->setFocus(Qt::TabFocusReason);
    QTest::keyPress(host.windowHandle(), Qt::Key_Return);
    // The button is gone and the card has the focus, so the card receives the key release.
    QVERIFY(host.card()->hasFocus());
    QTest::keyRelease(host.windowHandle(), Qt::Key_Return);
    QCOMPARE(CardHost::actions(), once("Invite Members"));
    // The next key is meant for the card.
    QTest::keyClick(host.windowHandle(), Qt::Key_Return);
    QCOMPARE(CardHost::actions().constLast(), QString::fromLatin1(OpenList));
}

QTEST_MAIN(TestConferenceCardInput)
#include "tst_conferencecardinput.moc"
