// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "semantic/semantic.h"
#include "slotreader.h"
#include "testcolumns.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

CloudIntent intentOf(QByteArray json)
{
    CloudIntent intent;
    intent.parse(QJsonDocument::fromJson(json.replace('\'', '"')).object());
    return intent;
}

} // namespace

class TestSlotReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalFormGoesFirst_data();
    void normalFormGoesFirst();
    void slotsAreFoundByName();
};

void TestSlotReader::normalFormGoesFirst_data()
{
    addColumns<QString, QString>({"slot", "text"});
    QTest::newRow("only said") << QStringLiteral("{'name':'id','value':'a'}") << QStringLiteral("a");
    QTest::newRow("both") << QStringLiteral("{'name':'id','value':'a','normValue':'b'}")
                          << QStringLiteral("b");
    QTest::newRow("only the normal form")
        << QStringLiteral("{'name':'id','normValue':'b'}") << QStringLiteral("b");
    QTest::newRow("an empty normal form")
        << QStringLiteral("{'name':'id','value':'a','normValue':''}") << QString();
    QTest::newRow("a null normal form")
        << QStringLiteral("{'name':'id','value':'a','normValue':null}") << QString();
    QTest::newRow("neither") << QStringLiteral("{'name':'id'}") << QString();
    QTest::newRow("a number") << QStringLiteral("{'name':'id','value':42}") << QStringLiteral("42");
    QTest::newRow("keys are matched exactly")
        << QStringLiteral("{'name':'id','value':'a','normvalue':'b'}") << QStringLiteral("a");
}

void TestSlotReader::normalFormGoesFirst()
{
    QFETCH(const QString, slot);
    QFETCH(const QString, text);
    const CloudIntent intent = intentOf("{'intent':'ANY','slots':[" + slot.toUtf8() + "]}");
    QCOMPARE(SlotReader::firstText(intent, SlotName::Id), text);
    QCOMPARE(SlotReader::text(*SlotReader::first(intent, SlotName::Id)), text);
    QCOMPARE(SlotReader::allTexts(intent, SlotName::Id), QVector<QString>{text});
}

void TestSlotReader::slotsAreFoundByName()
{
    const CloudIntent intent =
        intentOf("{'intent':'ANY','slots':[{'name':'open','value':'x'},{'name':'name','value':'a'},"
                 "{'name':'Name','value':'b'},{'name':'name','value':'c','normValue':'d'},"
                 "{'name':'name','value':'a'}]}");
    QCOMPARE(SlotReader::allTexts(intent, SlotName::Name),
             (QVector<QString>{QStringLiteral("a"), QStringLiteral("d"), QStringLiteral("a")}));
    QCOMPARE(SlotReader::firstText(intent, SlotName::Name), QStringLiteral("a"));
    QVERIFY(SlotReader::first(intent, SlotName::Account) == nullptr);
    QCOMPARE(SlotReader::firstText(intent, SlotName::Account, QStringLiteral("none")),
             QStringLiteral("none"));
    QVERIFY(SlotReader::allTexts(intent, SlotName::Account).isEmpty());
    const CloudSlot *second = &intent.slotList.at(3);
    QCOMPARE(SlotReader::spokenValue(*second), QStringLiteral("c"));
}

QTEST_GUILESS_MAIN(TestSlotReader)

#include "tst_slotreader.moc"
