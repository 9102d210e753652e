// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "text/characterset.h"

#include <QtTest>

using understanding::CharacterSet;

/// A set of characters says of each character the same as the string that it is made from.
class TestCharacterSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itHoldsItsCharacters_data();
    void itHoldsItsCharacters();
    void aTextMeetsIt();
};

void TestCharacterSet::itHoldsItsCharacters_data()
{
    QTest::addColumn<QString>("characters");
    QTest::newRow("none") << QString();
    QTest::newRow("one") << QStringLiteral("会");
    QTest::newRow("twice the same") << QStringLiteral("会会");
    QTest::newRow("signs") << QStringLiteral(",.!?;、 。~");
    QString apart; // these would all stand at the same place
    for (ushort character = 0x4000; character < 0x9000; character += 0x200) {
        apart += QChar(character);
    }
    QString many;
    for (ushort character = 0x4e00; character < 0x9e00; character += 0x101) {
        many += QChar(character);
    }
    QTest::newRow("multiples of a power of two") << apart;
    QTest::newRow("many") << many;
    QTest::newRow("at the end of the places") << QStringLiteral("\u4eff\u4fff\u50ff\u51ff");
}

void TestCharacterSet::itHoldsItsCharacters()
{
    QFETCH(QString, characters);
    const CharacterSet set(characters);
    for (int code = 0; code < 0x10000; ++code) {
        const QChar character(code);
        QVERIFY2(set.contains(character) == characters.contains(character),
                 qPrintable(QString::number(code)));
    }
}

void TestCharacterSet::aTextMeetsIt()
{
    const CharacterSet set(u"来去");
    QVERIFY(set.meets(QStringLiteral("我去")));
    QVERIFY(!set.meets(QStringLiteral("我走")));
    QVERIFY(!set.meets(QString()));
}

QTEST_APPLESS_MAIN(TestCharacterSet)
#include "tst_characterset.moc"
