// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testcolumns.h"
#include "text/chinesenumber.h"

#include <QtTest>

using namespace understanding;

class TestChineseNumber : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quantities_data()
    {
        addColumns<QString, int, int>({"said", "value", "length"});
        const auto row = [](const char *said, int value, int length) {
            QTest::newRow(said) << QString::fromUtf8(said) << value << length;
        };
        row("三", 3, 1);
        row("两", 2, 1);
        row("十", 10, 1);
        row("十二", 12, 2);
        row("二十", 20, 2);
        row("二十五", 25, 3);
        row("一百", 100, 2);
        row("一百二十", 120, 4);
        row("一百零五", 105, 4);
        row("九百九十九", 999, 5);
        row("零五", 5, 2);
        row("〇五", 5, 2);
        row("三零", 30, 2);
        row("二零二六", 2026, 4);
        row("廿三", 23, 2);
        row("25", 25, 2);
        row("2026年", 2026, 4);
        row("12345", 0, 0);
        row("三点", 3, 1);
        row("十十", 10, 1);
        row("幺", 0, 0);
        row("点", 0, 0);
        row("", 0, 0);
    }
    void quantities()
    {
        QFETCH(QString, said);
        QFETCH(int, value);
        QFETCH(int, length);
        const NumberMatch match = readQuantity(said, 0);
        QCOMPARE(match.length, length);
        QCOMPARE(match.value, value);
    }

    void stringsOfDigits_data()
    {
        addColumns<QString, QString>({"said", "digits"});
        const auto row = [](const char *name, const char *said, const char *digits) {
            QTest::newRow(name) << QString::fromUtf8(said) << QString::fromLatin1(digits);
        };
        row("幺 is one", "幺二三", "123");
        row("both zeros, and leading ones stay", "零〇一", "001");
        row("spaces are dropped", "123 456", "123456");
        row("dashes are dropped", "138-0013-8000", "13800138000");
        row("a repeated digit", "三个八", "888");
        row("a repeated digit among others", "一两个零五", "1005");
        row("letters stay", "abc一二", "abc12");
        row("a dash between letters stays", "li-si 01", "li-si01");
    }
    void stringsOfDigits()
    {
        QFETCH(QString, said);
        QFETCH(QString, digits);
        QCOMPARE(digitString(said), digits);
    }

    void aStringOfDigitsEndsWithItsLastDigit_data()
    {
        addColumns<QString, int>({"text", "end"});
        QTest::newRow("before a word") << QStringLiteral("123456会议") << 6;
        QTest::newRow("without the space behind") << QStringLiteral("123 456 会议") << 7;
        QTest::newRow("without the dash behind") << QStringLiteral("123-会议") << 3;
        QTest::newRow("read aloud") << QStringLiteral("八零零二三五的会议") << 6;
        QTest::newRow("no digits") << QStringLiteral("会议") << 0;
    }
    void aStringOfDigitsEndsWithItsLastDigit()
    {
        QFETCH(QString, text);
        QFETCH(int, end);
        QCOMPARE(digitStringEnd(text, 0), end);
    }
};

QTEST_APPLESS_MAIN(TestChineseNumber)
#include "tst_chinesenumber.moc"
