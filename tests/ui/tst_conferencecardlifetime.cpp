// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "contactreplywidget.h"
#include "customizecombobox.h"
#include "desktoptheme.h"
#include "testcolumns.h"

#include <lumo/lcombobox.h>
#include <lumo/lcommandlinkbutton.h>
#include <lumo/lspinbox.h>

#include <QPushButton>
#include <QtTest>

using namespace CardSamples;

/// Any receiver may delete a card at any moment: inside each of its signals, and during a request that it
/// started. Checks that nothing happens afterwards; the sanitizers catch accesses to deleted objects.
class TestConferenceCardLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletedByItsOwnReply_data();
    void deletedByItsOwnReply();
    void deletedWhileItsRequestIsUnderWay_data();
    void deletedWhileItsRequestIsUnderWay();
    void deletedWhenItGoesOnInTheContacts();
    void deletedWhileItOpensTheContacts_data();
    void deletedWhileItOpensTheContacts();
    void deletedBySignalsOfItsControls_data();
    void deletedBySignalsOfItsControls();
    void deletedWithTheDispatcherListening();
    void theDispatcherGoesFirst();
    void theThemeChangesAfterACardIsGone();
};

namespace {

using Go = void (*)(QPushButton *);

/// Adds every action of a card, triggered in each way a user can.
void addActions()
{
    struct Action
    {
        const char *name;
        Build build;
        const char *button;
    };
    static const Action actions[] = {
        {"modify", buildEdited, "修 改"},      {"cancel", buildEdited, "取 消"},
        {"create", buildCreate, "确 认"},      {"invite", buildInvite, "确 认"},
        {"within limit", buildLimit, "确 认"},
    };
    struct Way
    {
        const char *name;
        void (*go)(QPushButton *);
    };
    static const Way ways[] = {
        {"click",
         [](QPushButton *target) {
             QTest::mouseClick(target, Qt::LeftButton);
         }},
        {"Return",
         [](QPushButton *target) {
             QWindow *window = target->window()->windowHandle();
             target->setFocus(Qt::TabFocusReason);
             QTest::keyClick(window, Qt::Key_Return);
         }},
        {"Space",
         [](QPushButton *target) {
             QWindow *window = target->window()->windowHandle();
             target->setFocus(Qt::TabFocusReason);
             QTest::keyClick(window, Qt::Key_Space);
         }},
        {"signal",
         [](QPushButton *target) {
             Q_EMIT target->clicked();
         }},
    };
    addColumns<Build, QString, Go>({"build", "text", "go"});
    for (const Action &action : actions) {
        for (const Way &way : ways) {
            QTest::addRow("%s by %s", action.name, way.name)
                << action.build << QString::fromUtf8(action.button) << way.go;
        }
    }
}

} // namespace

Q_DECLARE_METATYPE(Go)

void TestConferenceCardLifetime::deletedByItsOwnReply_data()
{
    addActions();
}

void TestConferenceCardLifetime::deletedByItsOwnReply()
{
    QFETCH(Build, build);
    QFETCH(QString, text);
    QFETCH(Go, go);
    CardHost host(build);
    QVERIFY(host.activate());
    connect(host.card(), &ConferenceMsgStaticWidget::signalSendShowMessgae, &host,
            [&host] { delete host.card(); });
    go(button(*host.card(), text));
    QVERIFY(host.card() == nullptr);
    QCOMPARE(host.replies().size(), 1);
    QCOMPARE(CardHost::actions().size(), 1);
}

void TestConferenceCardLifetime::deletedWhileItsRequestIsUnderWay_data()
{
    addActions();
}

void TestConferenceCardLifetime::deletedWhileItsRequestIsUnderWay()
{
    QFETCH(Build, build);
    QFETCH(QString, text);
    QFETCH(Go, go);
    CardHost host(build);
    QVERIFY(host.activate());
    ScriptedAbility::instance().duringNextRequest([&host] { delete host.card(); });
    go(button(*host.card(), text));
    QVERIFY(host.card() == nullptr);
    // No card is left to reply.
    QVERIFY(host.replies().isEmpty());
    QCOMPARE(CardHost::actions().size(), 1);
}

void TestConferenceCardLifetime::deletedWhenItGoesOnInTheContacts()
{
    for (const bool duringRequest : {false, true}) {
        CardHost host(buildEdited);
        if (duringRequest) {
            ScriptedAbility::instance().duringNextRequest([&host] { delete host.card(); });
        } else {
            connect(host.card(), &ConferenceMsgStaticWidget::signalSendShowMessgae, &host,
                    [&host] { delete host.card(); });
        }
        host.card()->slotInviteConference();
        QVERIFY(host.card() == nullptr);
        QCOMPARE(CardHost::actions(), QStringList{QStringLiteral("Update Conference")});
    }
}

void TestConferenceCardLifetime::deletedWhileItOpensTheContacts_data()
{
    addColumns<bool, bool>({"onFooter", "withKey"});
    addRow("by a click", false, false);
    addRow("by a key", false, true);
    addRow("by a click on the footer", true, false);
    addRow("by Return on the footer", true, true);
}

void TestConferenceCardLifetime::deletedWhileItOpensTheContacts()
{
    QFETCH(bool, onFooter);
    QFETCH(bool, withKey);
    CardHost host;
    host.card()->multipleInit(conferences(4));
    QVERIFY(host.activate());
    ScriptedAbility::instance().duringNextRequest([&host] { delete host.card(); });
    QPushButton *footer = shown<LCommandLinkButton>(*host.card()).constFirst();
    QWidget *target = onFooter ? static_cast<QWidget *>(footer) : host.card();
    target->setFocus(Qt::TabFocusReason);
    if (withKey) {
        QTest::keyClick(host.windowHandle(), Qt::Key_Return);
    } else {
        QTest::mouseClick(target, Qt::LeftButton);
    }
    QVERIFY(host.card() == nullptr);
    QCOMPARE(CardHost::actions(), QStringList{QStringLiteral("Open Conference List")});
}

void TestConferenceCardLifetime::deletedBySignalsOfItsControls_data()
{
    QTest::addColumn<int>("control");
    QTest::newRow("the day") << 0;
    QTest::newRow("the hour") << 1;
    QTest::newRow("the duration") << 2;
    QTest::newRow("the head count") << 3;
}

void TestConferenceCardLifetime::deletedBySignalsOfItsControls()
{
    QFETCH(int, control);
    CardHost host;
    QVector<ContactDetailMsg> list = {conference()};
    host.card()->createInviteConference(list);
    QVERIFY(host.activate());
    const ConferenceMsgStaticWidget &card = *host.card();
    const auto deleteCard = [&host] {
        delete host.card();
    };
    auto *date = named<CustomizeComboBox>(card, QStringLiteral("日期"));
    auto *hour = named<LComboBox>(card, QStringLiteral("开始时间"));
    auto *duration = named<LComboBox>(card, QStringLiteral("时长"));
    auto *people = named<LSpinBox>(card, QStringLiteral("人数"));
    switch (control) {
    case 0:
        connect(date, &CustomizeComboBox::signalSelectionDate, &host, deleteCard);
        date->slotSelectionData(QDate(2024, 3, 8));
        break;
    case 1:
    case 2: {
        LComboBox *box = control == 1 ? hour : duration;
        // The last signal that a change emits.
        connect(box, &QComboBox::currentTextChanged, &host, deleteCard, Qt::QueuedConnection);
        box->setFocus(Qt::TabFocusReason);
        QTest::keyClick(host.windowHandle(), Qt::Key_Up);
        break;
    }
    default:
        connect(people, QOverload<int>::of(&QSpinBox::valueChanged), &host, deleteCard, Qt::QueuedConnection);
        people->setFocus(Qt::TabFocusReason);
        QTest::keyClick(host.windowHandle(), Qt::Key_Down);
        break;
    }
    QTRY_VERIFY(host.card() == nullptr);
    QVERIFY(host.replies().isEmpty());
}

void TestConferenceCardLifetime::deletedWithTheDispatcherListening()
{
    const LogCapture log;
    ContactReplyWidget dispatcher;
    CardHost host;
    QPointer<ConferenceMsgStaticWidget> card;
    Reply reply(0, QString(), Reply::Texts);
    dispatcher.slotNoticeAction(3, QVariant::fromValue(inviteDetail()), &reply);
    card = qobject_cast<ConferenceMsgStaticWidget *>(reply.widget);
    QStringList heard;
    connect(&dispatcher, &ContactReplyWidget::signaleSendShowMessage, this, [&](const Reply &late) {
        heard.append(late.displayText.toString());
        delete card;
    });
    card->slotInviteMultipleSelectBtn();
    QVERIFY(card.isNull());
    QCOMPARE(heard, QStringList{QStringLiteral("好的，已为您发起和赵六的视频会议。")});
    // The former card's deletion does not affect the next result.
    dispatcher.slotNoticeAction(3, QVariant::fromValue(inviteDetail()), &reply);
    QVERIFY(reply.widget != nullptr);
    delete reply.widget;
}

void TestConferenceCardLifetime::theDispatcherGoesFirst()
{
    CardHost host;
    auto dispatcher = std::make_unique<ContactReplyWidget>();
    Reply reply(0, QString(), Reply::Texts);
    dispatcher->slotNoticeAction(3, QVariant::fromValue(inviteDetail()), &reply);
    const std::unique_ptr<QWidget> owner(reply.widget);
    dispatcher.reset();
    qobject_cast<ConferenceMsgStaticWidget *>(reply.widget)->slotInviteMultipleSelectBtn();
    QCOMPARE(CardHost::actions(), QStringList{QStringLiteral("Invite Members")});
}

void TestConferenceCardLifetime::theThemeChangesAfterACardIsGone()
{
    const LogCapture log;
    {
        ConferenceMsgStaticWidget card;
        card.multipleInit(conferences(4));
    }
    QSignalSpy changes(qGuiApp, &QGuiApplication::paletteChanged);
    DesktopTheme::set(DesktopTheme::Dark);
    QTRY_VERIFY(!changes.isEmpty());
    DesktopTheme::set(DesktopTheme::Light);
}

QTEST_MAIN(TestConferenceCardLifetime)
#include "tst_conferencecardlifetime.moc"
