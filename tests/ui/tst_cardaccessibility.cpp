// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "testcolumns.h"
#include "titleitem.h"

#include <lumo/lspinbox.h>

#include <QAccessible>
#include <QPushButton>
#include <QtTest>

#include <functional>

using namespace CardSamples;

/// What a card exposes to assistive technology, and the Tab order of its controls.
class TestCardAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasANameAndATurn_data();
    void everyControlHasANameAndATurn();
    void theControlsOfAnEditor_data();
    void theControlsOfAnEditor();
    void captionsBelongToTheirControls();
    void textsAreReadAsTheyAre();
    void theCardSaysWhatItDoes();
    void theCardCanBePressed();
    void separatorsAreSeparators();
    void eachPersonAppearsOnce();
};

namespace {

void forEach(QAccessibleInterface *interface, const std::function<void(QAccessibleInterface *)> &visit)
{
    visit(interface);
    for (int i = 0; i < interface->childCount(); ++i) {
        QAccessibleInterface *child = interface->child(i);
        if (child != nullptr) {
            forEach(child, visit);
        }
    }
}

QAccessibleInterface *controlNamed(QWidget &parent, const QString &name)
{
    QAccessibleInterface *found = nullptr;
    forEach(QAccessible::queryAccessibleInterface(&parent), [&](QAccessibleInterface *interface) {
        // On this platform a combo box's name is its current text; its description tells what it is for.
        const auto text =
            interface->role() == QAccessible::ComboBox ? QAccessible::Description : QAccessible::Name;
        if (found == nullptr && interface->state().focusable && interface->text(text) == name) {
            found = interface;
        }
    });
    return found;
}

} // namespace

void TestCardAccessibility::everyControlHasANameAndATurn_data()
{
    addColumns<Build, int>({"build", "controls"});
    QTest::newRow("one conference: the card")
        << Build([](ConferenceMsgStaticWidget &card) { card.singleInit({conference()}); }) << 1;
    QTest::newRow("three conferences: the card")
        << Build([](ConferenceMsgStaticWidget &card) { card.multipleInit(conferences(3)); }) << 1;
    QTest::newRow("four conferences: the card and the footer")
        << Build([](ConferenceMsgStaticWidget &card) { card.multipleInit(conferences(4)); }) << 2;
    QTest::newRow("an editor: the card, four fields and two buttons") << Build(buildEdited) << 7;
    QTest::newRow("people to create with: the card, five rows and a button")
        << Build([](ConferenceMsgStaticWidget &card) { card.createMultiplePerson(createdDetail(), true); })
        << 7;
    QTest::newRow("people to invite: the card, five rows and a button")
        << Build([](ConferenceMsgStaticWidget &card) { card.inviteMultiplePerson(inviteDetail()); }) << 7;
    QTest::newRow("people within the limit: the card, six rows and a button")
        << Build([](ConferenceMsgStaticWidget &card) { card.invitePersonLimit(inviteDetail()); }) << 8;
}

void TestCardAccessibility::everyControlHasANameAndATurn()
{
    QFETCH(Build, build);
    QFETCH(int, controls);
    CardHost host(build);
    QVERIFY(host.activate());

    // Tabs once around, starting at the card.
    host.card()->setFocus(Qt::TabFocusReason);
    QVector<QWidget *> turns;
    QWidget *focused = host.focusWidget();
    while (focused != nullptr && !turns.contains(focused)) {
        turns.append(focused);
        QTest::keyClick(host.windowHandle(), Qt::Key_Tab);
        focused = host.focusWidget();
    }
    QCOMPARE(turns.size(), controls);
    for (QWidget *turn : qAsConst(turns)) {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(turn);
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), turn->metaObject()->className());
        QVERIFY(interface->state().focusable);
    }
    // The Tab order is the visual order.
    for (int i = 2; i < turns.size(); ++i) {
        const QPoint before = turns.at(i - 1)->mapTo(&host, QPoint());
        const QPoint here = turns.at(i)->mapTo(&host, QPoint());
        QVERIFY(here.y() > before.y() + 10 || here.x() > before.x());
    }

    // As assistive technology sees it: every control has a name.
    forEach(QAccessible::queryAccessibleInterface(host.card()), [](QAccessibleInterface *interface) {
        const QAccessible::Role role = interface->role();
        if (interface->state().invisible) {
            return;
        }
        if (role == QAccessible::PushButton || role == QAccessible::ComboBox ||
            role == QAccessible::SpinBox || role == QAccessible::CheckBox) {
            QVERIFY2(!interface->text(QAccessible::Name).isEmpty(),
                     interface->object()->metaObject()->className());
        }
    });
}

void TestCardAccessibility::theControlsOfAnEditor_data()
{
    addColumns<QString, int, QString>({"name", "role", "value"});
    QTest::newRow("the day") << QStringLiteral("日期") << int(QAccessible::ComboBox)
                             << QStringLiteral("3月7日 周四");
    QTest::newRow("the hour") << QStringLiteral("开始时间") << int(QAccessible::ComboBox)
                              << QStringLiteral("09:00");
    QTest::newRow("the duration") << QStringLiteral("时长") << int(QAccessible::ComboBox)
                                  << QStringLiteral("15分钟");
    QTest::newRow("the head count") << QStringLiteral("人数") << int(QAccessible::SpinBox)
                                    << QStringLiteral("7");
    QTest::newRow("cancel") << QStringLiteral("取 消") << int(QAccessible::PushButton) << QString();
    QTest::newRow("modify") << QStringLiteral("修 改") << int(QAccessible::PushButton) << QString();
}

void TestCardAccessibility::theControlsOfAnEditor()
{
    QFETCH(QString, name);
    CardHost host(buildEdited);
    QVERIFY(host.activate());
    QAccessibleInterface *control = controlNamed(*host.card(), name);
    QVERIFY(control != nullptr);
    QTEST(int(control->role()), "role");
    QTEST(control->text(QAccessible::Value), "value");
}

void TestCardAccessibility::captionsBelongToTheirControls()
{
    CardHost host(buildEdited);
    QVERIFY(host.activate());
    const QMap<QString, QString> captions = {{QStringLiteral("时间"), QStringLiteral("日期")},
                                             {QStringLiteral("时长"), QStringLiteral("时长")},
                                             {QStringLiteral("人数"), QStringLiteral("人数")}};
    for (auto row = captions.constBegin(); row != captions.constEnd(); ++row) {
        const auto relations = controlNamed(*host.card(), row.value())->relations(QAccessible::Label);
        QCOMPARE(relations.size(), 1);
        QCOMPARE(relations.first().first->text(QAccessible::Name), row.key());
    }
}

void TestCardAccessibility::textsAreReadAsTheyAre()
{
    CardHost host;
    ContactDetailMsg one = conference();
    one.title = QStringLiteral("<b>x</b>") + QString(300, QLatin1Char('y'));
    host.card()->singleInit({one});
    QVERIFY(host.activate());
    QStringList read;
    forEach(QAccessible::queryAccessibleInterface(host.card()), [&read](QAccessibleInterface *interface) {
        if (interface->role() == QAccessible::StaticText) {
            read.append(interface->text(QAccessible::Name));
        }
    });
    // The whole text, although the label is elided.
    QVERIFY(read.contains(one.title));
    QVERIFY(read.contains(QStringLiteral("902 118 34")));
}

void TestCardAccessibility::theCardSaysWhatItDoes()
{
    const CardHost host;
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(host.card());
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("联系人"));
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("打开联系人应用"));
}

void TestCardAccessibility::theCardCanBePressed()
{
    const CardHost host;
    host.card()->singleInit({conference()});
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(host.card());
    QCOMPARE(interface->role(), QAccessible::Grouping);
    QAccessibleActionInterface *actions = interface->actionInterface();
    QVERIFY(actions != nullptr);
    const QString press = QAccessibleActionInterface::pressAction();
    QCOMPARE(actions->actionNames().constFirst(), press);
    actions->doAction(press);
    QCOMPARE(CardHost::actions().size(), 1);
    // A cancelled card can be neither clicked nor pressed.
    host.card()->setEnabled(false);
    QVERIFY(!actions->actionNames().contains(press));
    actions->doAction(press);
    QCOMPARE(CardHost::actions().size(), 1);
}

void TestCardAccessibility::separatorsAreSeparators()
{
    CardHost host(buildEdited);
    QVERIFY(host.activate());
    int separators = 0;
    forEach(QAccessible::queryAccessibleInterface(host.card()), [&](QAccessibleInterface *interface) {
        if (interface->role() == QAccessible::Separator) {
            ++separators;
            QVERIFY(!interface->state().focusable);
            QVERIFY(interface->actionInterface()->actionNames().isEmpty());
        }
        QVERIFY(interface->role() != QAccessible::PushButton || interface->state().focusable ||
                interface->state().disabled);
    });
    // Below the title, and between the two buttons.
    QCOMPARE(separators, 2);
}

void TestCardAccessibility::eachPersonAppearsOnce()
{
    CardHost host;
    host.card()->createMultiplePerson(createdDetail(), true);
    QVERIFY(host.activate());
    const auto rows = shown<TiTleItem>(*host.card());
    QTest::mouseClick(rows.at(0), Qt::LeftButton);
    QStringList boxes;
    forEach(QAccessible::queryAccessibleInterface(host.card()), [&boxes](QAccessibleInterface *interface) {
        if (interface->role() == QAccessible::CheckBox) {
            boxes << interface->text(QAccessible::Name) + interface->text(QAccessible::Description);
        }
    });
    QCOMPARE(boxes.size(), rows.size());
    QCOMPARE(boxes.removeDuplicates(), 0);
}

QTEST_MAIN(TestCardAccessibility)
#include "tst_cardaccessibility.moc"
