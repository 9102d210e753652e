// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencehours.h"
#include "testcolumns.h"

#include <QtTest>

class TestConferenceHours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneChoiceForEachHour_data();
    void thereIsOneChoiceForEachHour();
    void minutesDoNotChangeTheLabel();
    void anyOtherTextIsNoTime();
    void anInvalidTimeHasNoLabel();
};

void TestConferenceHours::thereIsOneChoiceForEachHour_data()
{
    addColumns<int, QString>({"hour", "label"});
    for (int hour = 0; hour < 24; ++hour) {
        QTest::addRow("at %d", hour) << hour << QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0'));
    }
}

void TestConferenceHours::thereIsOneChoiceForEachHour()
{
    QFETCH(int, hour);
    QFETCH(QString, label);
    const ConferenceHours hours;
    QCOMPARE(hours.choices().size(), 24);
    QCOMPARE(hours.choices().at(hour), label);
    QCOMPARE(hours.label(QTime(hour, 0)), label);
    QCOMPARE(hours.time(label), QTime(hour, 0, 0, 0));
}

void TestConferenceHours::minutesDoNotChangeTheLabel()
{
    QCOMPARE(ConferenceHours().label(QTime(9, 59, 59, 999)), QStringLiteral("09:00"));
}

void TestConferenceHours::anyOtherTextIsNoTime()
{
    for (const QString &text : {QString(), QStringLiteral("24:00"), QStringLiteral("9:00")}) {
        QVERIFY2(!ConferenceHours().time(text).isValid(), qPrintable(text));
    }
}

void TestConferenceHours::anInvalidTimeHasNoLabel()
{
    QCOMPARE(ConferenceHours().label(QTime()), QString());
}

QTEST_APPLESS_MAIN(TestConferenceHours)
#include "tst_conferencehours.moc"
