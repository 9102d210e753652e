// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencestate.h"
#include "testcolumns.h"

#include <QtTest>

class TestConferenceState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStatusAndHowItIsShown_data();
    void aStatusAndHowItIsShown();
};

void TestConferenceState::aStatusAndHowItIsShown_data()
{
    addColumns<int, QString, QString, QColor>({"status", "text", "icon", "color"});
    const QString running = QStringLiteral("进行中");
    const QString runningIcon = QStringLiteral(":/icon/conferenceIn.svg");
    const QColor green(89, 190, 45);
    QTest::newRow("0 has not started")
        << 0 << QStringLiteral("未开始") << QStringLiteral(":/icon/conferenceWaiting.svg")
        << QColor(0, 129, 255);
    QTest::newRow("1 is in progress") << 1 << running << runningIcon << green;
    QTest::newRow("2 has ended") << 2 << QStringLiteral("已结束")
                                 << QStringLiteral(":/icon/conferenceEnd.svg") << QColor(0, 0, 0, 77);
    QTest::newRow("3 is in progress") << 3 << running << runningIcon << green;
    QTest::newRow("5 is in progress") << 5 << running << runningIcon << green;
    QTest::newRow("a negative one is in progress") << -1 << running << runningIcon << green;
}

void TestConferenceState::aStatusAndHowItIsShown()
{
    QFETCH(int, status);
    const ConferenceState state = ConferenceState::of(status);
    QTEST(state.text, "text");
    QTEST(QString::fromLatin1(state.icon), "icon");
    QTEST(state.color, "color");
}

QTEST_APPLESS_MAIN(TestConferenceState)
#include "tst_conferencestate.moc"
