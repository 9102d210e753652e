// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencedurations.h"
#include "testcolumns.h"

#include <QtTest>

class TestConferenceDurations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDurationAndItsLabel_data();
    void aDurationAndItsLabel();
    void whoPaysHasAllEight();
    void whoDoesNotPayHasThoseBelowAnHour();
    void anUnknownDurationJoinsTheTableWithoutAName();
};

void TestConferenceDurations::aDurationAndItsLabel_data()
{
    addColumns<qint64, QString>({"duration", "label"});
    QTest::newRow("five minutes") << Q_INT64_C(300000) << QStringLiteral("5分钟");
    QTest::newRow("ten minutes") << Q_INT64_C(600000) << QStringLiteral("10分钟");
    QTest::newRow("a quarter of an hour") << Q_INT64_C(900000) << QStringLiteral("15分钟");
    QTest::newRow("half an hour") << Q_INT64_C(1800000) << QStringLiteral("30分钟");
    QTest::newRow("one hour") << Q_INT64_C(3600000) << QStringLiteral("1小时");
    QTest::newRow("two hours") << Q_INT64_C(7200000) << QStringLiteral("2小时");
    QTest::newRow("three hours") << Q_INT64_C(10800000) << QStringLiteral("3小时");
    QTest::newRow("four hours") << Q_INT64_C(14400000) << QStringLiteral("4小时");
}

void TestConferenceDurations::aDurationAndItsLabel()
{
    QFETCH(qint64, duration);
    QFETCH(QString, label);
    ConferenceDurations durations;
    QCOMPARE(durations.label(duration), label);
    QCOMPARE(durations.duration(label), duration);
}

void TestConferenceDurations::whoPaysHasAllEight()
{
    const QStringList all = {QStringLiteral("5分钟"),  QStringLiteral("10分钟"), QStringLiteral("15分钟"),
                             QStringLiteral("30分钟"), QStringLiteral("1小时"),  QStringLiteral("2小时"),
                             QStringLiteral("3小时"),  QStringLiteral("4小时")};
    QCOMPARE(ConferenceDurations().choices(true), all);
}

void TestConferenceDurations::whoDoesNotPayHasThoseBelowAnHour()
{
    const QStringList some = {QStringLiteral("5分钟"), QStringLiteral("10分钟"), QStringLiteral("15分钟"),
                              QStringLiteral("30分钟")};
    QCOMPARE(ConferenceDurations().choices(false), some);
}

void TestConferenceDurations::anUnknownDurationJoinsTheTableWithoutAName()
{
    ConferenceDurations durations;
    QCOMPARE(durations.label(1234567), QString());
    QCOMPARE(durations.duration(QString()), Q_INT64_C(1234567));
}

QTEST_APPLESS_MAIN(TestConferenceDurations)
#include "tst_conferencedurations.moc"
