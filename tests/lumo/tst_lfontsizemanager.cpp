// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testcolumns.h"

#include <lumo/lfontsizemanager.h>

#include <QtTest>

class TestLFontSizeManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theClassesAreNumberedFromTheLargest_data();
    void theClassesAreNumberedFromTheLargest();
    void onlyTheSizeOfTheFontChanges();
    void aClassThatDoesNotExistIsTheNearest();
};

void TestLFontSizeManager::theClassesAreNumberedFromTheLargest_data()
{
    addColumns<int, int, int>({"type", "value", "pixelSize"});
    QTest::newRow("T1") << int(LFontSizeManager::T1) << 0 << 38;
    QTest::newRow("T2") << int(LFontSizeManager::T2) << 1 << 30;
    QTest::newRow("T3") << int(LFontSizeManager::T3) << 2 << 24;
    QTest::newRow("T4") << int(LFontSizeManager::T4) << 3 << 20;
    QTest::newRow("T5") << int(LFontSizeManager::T5) << 4 << 17;
    QTest::newRow("T6") << int(LFontSizeManager::T6) << 5 << 14;
    QTest::newRow("T7") << int(LFontSizeManager::T7) << 6 << 13;
    QTest::newRow("T8") << int(LFontSizeManager::T8) << 7 << 12;
    QTest::newRow("T9") << int(LFontSizeManager::T9) << 8 << 11;
    QTest::newRow("T10") << int(LFontSizeManager::T10) << 9 << 10;
}

void TestLFontSizeManager::theClassesAreNumberedFromTheLargest()
{
    QFETCH(int, type);
    QFETCH(int, value);
    QFETCH(int, pixelSize);
    QCOMPARE(type, value);
    const auto size = static_cast<LFontSizeManager::SizeType>(type);
    QCOMPARE(LFontSizeManager::instance()->fontPixelSize(size), pixelSize);
    QCOMPARE(LFontSizeManager::instance()->get(size).pixelSize(), pixelSize);
}

void TestLFontSizeManager::onlyTheSizeOfTheFontChanges()
{
    QFont base(QStringLiteral("Noto Sans CJK SC"), 30, QFont::Bold, true);
    const QFont font = LFontSizeManager::instance()->get(LFontSizeManager::T6, base);
    base.setPixelSize(font.pixelSize());
    QCOMPARE(font, base);
}

void TestLFontSizeManager::aClassThatDoesNotExistIsTheNearest()
{
    const LFontSizeManager &manager = *LFontSizeManager::instance();
    QCOMPARE(manager.fontPixelSize(static_cast<LFontSizeManager::SizeType>(-1)), 38);
    QCOMPARE(manager.fontPixelSize(static_cast<LFontSizeManager::SizeType>(10)), 10);
}

QTEST_MAIN(TestLFontSizeManager)
#include "tst_lfontsizemanager.moc"
