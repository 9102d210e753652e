// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactdetailform.h"

#include "logcapture.h"
#include "testcolumns.h"
#include "testswitch.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/// What the form sends when it is confirmed, when it is cancelled, and when it is empty.
class TestContactDetailRequests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void confirmingSendsTheChange_data();
    void confirmingSendsTheChange();
    void confirmingWritesToTheDebugLog();
    void withoutAFormConfirmingSendsNothing_data();
    void withoutAFormConfirmingSendsNothing();
    void cancellingOnlyWritesToTheDebugLog();
    void aFailureLeavesTheFormAsItIs();
};

void TestContactDetailRequests::init()
{
    acceptUpdates();
}

void TestContactDetailRequests::confirmingSendsTheChange_data()
{
    addColumns<QString, QString, QString, int, int, QDateTime, int>(
        {"month", "day", "hour", "durationIndex", "persons", "start", "minutes"});
    QTest::newRow("nothing changed but the minute of the start")
        << "3"
        << "31"
        << "9" << 1 << 40 << QDateTime(QDate(2024, 3, 31), QTime(9, 0)) << 30;
    QTest::newRow("everything changed")
        << "12"
        << "1"
        << "23" << 0 << 2 << QDateTime(QDate(2024, 12, 1), QTime(23, 0)) << 15;
    QTest::newRow("a shorter month") << "2"
                                     << ""
                                     << "0" << 0 << 100 << QDateTime(QDate(2024, 2, 29), QTime(0, 0)) << 15;
    QTest::newRow("a duration that is not offered stays")
        << "3"
        << "31"
        << "9" << -1 << 40 << QDateTime(QDate(2024, 3, 31), QTime(9, 0)) << 45;
}

void TestContactDetailRequests::confirmingSendsTheChange()
{
    QFETCH(QString, month);
    QFETCH(QString, day);
    QFETCH(QString, hour);
    QFETCH(int, durationIndex);
    QFETCH(int, persons);
    QFETCH(QDateTime, start);
    QFETCH(int, minutes);
    ContactDetailMsg edited = conference();
    if (durationIndex < 0) {
        edited.duration = 45 * 60000;
    }
    const Form form({edited});
    form.month()->setCurrentText(month);
    if (!day.isEmpty()) {
        form.day()->setCurrentText(day);
    }
    form.hour()->setCurrentText(hour);
    if (durationIndex >= 0) {
        form.duration()->setCurrentIndex(durationIndex);
    }
    form.persons()->setValue(persons);

    const LogCapture log;
    QTest::mouseClick(form.button(QStringLiteral("确 认")), Qt::LeftButton);
    const AbilityEvent request = ScriptedAbility::instance().onlyRequest();
    QCOMPARE(request.action, QStringLiteral("Update Conference"));
    const QJsonObject sent = QJsonDocument::fromJson(request.parameters.toUtf8()).object();
    const QJsonObject expected{
        {QStringLiteral("conferenceId"), QStringLiteral("c7")},
        {QStringLiteral("startTime"), start.toMSecsSinceEpoch()},
        {QStringLiteral("duration"), minutes * 60000},
        {QStringLiteral("participantLimit"), persons},
    };
    QCOMPARE(sent, expected);
}

void TestContactDetailRequests::confirmingWritesToTheDebugLog()
{
    Form form({conference()});
    const QDateTime start(QDate(2024, 3, 31), QTime(9, 0));
    QString startText;
    QDebug(&startText).nospace() << start;

    const LogCapture log;
    form.widget.slotsClickConfirm();
    const QStringList texts = log.texts(QtDebugMsg);
    const int first = texts.indexOf(QStringLiteral("slotsClickConfirm"));
    const int second = texts.indexOf(QStringLiteral("startTime: ") + startText);
    QVERIFY(first >= 0);
    QVERIFY2(second > first, qPrintable(texts.join(QLatin1Char('\n'))));
    QCOMPARE(texts.last(), QStringLiteral("0"));
}

void TestContactDetailRequests::withoutAFormConfirmingSendsNothing_data()
{
    addSwitch("emptyForm", "before the form is built", "a form of no conference");
}

void TestContactDetailRequests::withoutAFormConfirmingSendsNothing()
{
    QFETCH(const bool, emptyForm);
    ScriptedAbility::instance().reset();
    ContactDetailWidget widget;
    if (emptyForm) {
        widget.gridLayout({});
    }
    const LogCapture log;
    widget.slotsClickConfirm();
    QCOMPARE(log.lines(), QStringList{QStringLiteral("debug: slotsClickConfirm")});
    QVERIFY(ScriptedAbility::instance().requests().isEmpty());

    // A form that is built later works.
    acceptUpdates();
    widget.gridLayout({conference()});
    widget.slotsClickConfirm();
    QCOMPARE(ScriptedAbility::instance().requests().size(), 1);
}

void TestContactDetailRequests::cancellingOnlyWritesToTheDebugLog()
{
    const Form form({conference()});
    const LogCapture log;
    QTest::mouseClick(form.button(QStringLiteral("取 消")), Qt::LeftButton);
    QCOMPARE(log.lines(), QStringList{QStringLiteral("debug: slotsClickCancel")});
    QVERIFY(ScriptedAbility::instance().events().isEmpty());
}

void TestContactDetailRequests::aFailureLeavesTheFormAsItIs()
{
    Form form({conference()});
    form.hour()->setCurrentText(QStringLiteral("17"));
    ScriptedAbility::instance().setAnswer(QStringLiteral("Update Conference"), -16020, QString());
    const LogCapture log(LogCapture::Unexpected::Passes);
    form.widget.slotsClickConfirm();
    QCOMPARE(log.texts(QtDebugMsg).constLast(), QStringLiteral("-16020"));
    QCOMPARE(form.hour()->currentText(), QStringLiteral("17"));
    QVERIFY(form.widget.isEnabled());
}

QTEST_MAIN(TestContactDetailRequests)
#include "tst_contactdetailrequests.moc"
