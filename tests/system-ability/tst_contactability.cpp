// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scriptedrequest.h"

#include "logcapture.h"
#include "testcolumns.h"

#include <kelvane/abilitycodes.h>

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QLoggingCategory>
#include <QtTest>

#include <algorithm>
#include <thread>
#include <vector>

/// The ability library with a misbehaving application, on a bus that cannot start one.
class TestContactAbility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void failures_data();
    void failures();
    void anAnswerIsHandedOver();
    void thePasswordIsNotTraced();
    void aSlowAnswerInTimeIsAnAnswer();
    void aMissingApplicationIsToldAtOnce();
    void eventsWaitUntilTheRequestIsOver();
    void threadsDoNotWaitForEachOther();
    void aThousandRequestsMayWait();
};

void TestContactAbility::failures_data()
{
    addColumns<QString, int, QString, QString>({"action", "code", "error", "parameters"});
    QTest::newRow("an error") << QStringLiteral("Fail") << int(AbilityCode::Refused)
                              << QStringLiteral("org.example.Error.NotToday not today") << QString();
    for (const char *signature : {"i", "", "is"}) {
        QTest::addRow("an answer of the type \"%s\"", signature)
            << QStringLiteral("Malform") << int(AbilityCode::MalformedAnswer)
            << QStringLiteral("org.freedesktop.DBus.Error.InvalidSignature ")
            << QString::fromLatin1(signature);
    }
    for (const char *signature : {"ss", "si", "sss"}) {
        QTest::addRow("a text and more, \"%s\"", signature)
            << QStringLiteral("Malform") << int(AbilityCode::MalformedAnswer)
            << QStringLiteral("signature %1").arg(QLatin1String(signature)) << QString::fromLatin1(signature);
    }
    QTest::newRow("a death during the call")
        << QStringLiteral("Die") << int(AbilityCode::Died)
        << QStringLiteral("org.freedesktop.DBus.Error.NoReply ") << QString();
}

void TestContactAbility::failures()
{
    QFETCH(QString, action);
    QFETCH(int, code);
    QFETCH(QString, error);
    QFETCH(QString, parameters);
    const Running application(scripted());
    QVERIFY(application.isReady());
    LogCapture log(LogCapture::Unexpected::Passes);
    const Asked asked = ask(action, parameters);
    QCOMPARE(asked.code, code);
    QVERIFY(asked.code >= -9999 && asked.code <= -1);
    QCOMPARE(asked.answer, QStringLiteral("untouched"));
    QVERIFY(asked.msecs < 5000);
    const QStringList warnings = log.texts(QtWarningMsg);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.at(0).startsWith(
                 QStringLiteral("The request %1 failed with %2 %3").arg(action).arg(code).arg(error)),
             qPrintable(warnings.at(0)));
}

void TestContactAbility::anAnswerIsHandedOver()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    const LogCapture log;
    const QString text = QStringLiteral("{\"ret\":\"OK\",\"title\":\"周会\\n😀\"}");
    const Asked asked = ask(QStringLiteral("Echo"), text);
    QCOMPARE(asked.code, 0);
    QCOMPARE(asked.answer, text);
}

void TestContactAbility::thePasswordIsNotTraced()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    QLoggingCategory::setFilterRules(QStringLiteral("kelvane.ability.debug=true"));
    const LogCapture log;
    const QString text = QStringLiteral(R"({"conferenceId":"880","password":"246810"})");
    // Answers are traced unchanged; this one does not repeat the parameters.
    QCOMPARE(ask(QStringLiteral("Late"), text).code, 0);
    QLoggingCategory::setFilterRules(QString());
    const QString traced = log.lines().join(QLatin1Char('\n'));
    QVERIFY2(traced.contains(QStringLiteral("880")), qPrintable(traced));
    QVERIFY2(!traced.contains(QStringLiteral("246810")), qPrintable(traced));
}

void TestContactAbility::aSlowAnswerInTimeIsAnAnswer()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    const Asked asked = ask(QStringLiteral("Late"), QStringLiteral("300"));
    QCOMPARE(asked.code, 0);
    QCOMPARE(asked.answer, QStringLiteral("late"));
    QVERIFY(asked.msecs >= 300);
}

void TestContactAbility::aMissingApplicationIsToldAtOnce()
{
    const LogCapture log(LogCapture::Unexpected::Passes);
    const Asked asked = ask(QStringLiteral("Echo"));
    QCOMPARE(asked.code, int(AbilityCode::NoService));
    QVERIFY(asked.msecs < 5000);
}

void TestContactAbility::eventsWaitUntilTheRequestIsOver()
{
    const Running application(scripted());
    QVERIFY(application.isReady());
    bool delivered = false;
    QTimer::singleShot(0, this, [&delivered] { delivered = true; });
    QMetaObject::invokeMethod(
        this, [&delivered] { delivered = true; }, Qt::QueuedConnection);
    QCOMPARE(ask(QStringLiteral("Late"), QStringLiteral("100")).code, 0);
    QVERIFY(!delivered);
    QTRY_VERIFY(delivered);
}

void TestContactAbility::threadsDoNotWaitForEachOther()
{
    constexpr int threadCount = 8;
    const Running application(scripted());
    QVERIFY(application.isReady());
    QElapsedTimer timer;
    timer.start();
    std::vector<int> codes(threadCount, 1);
    std::vector<std::thread> threads;
    for (int &code : codes) {
        threads.emplace_back([&code] { code = ask(QStringLiteral("Late"), QStringLiteral("500")).code; });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(codes, std::vector<int>(threadCount, 0));
    QVERIFY2(timer.elapsed() < threadCount * 500, qPrintable(QString::number(timer.elapsed())));
}

void TestContactAbility::aThousandRequestsMayWait()
{
    constexpr int requestCount = 1000;
    const Running application(scripted());
    QVERIFY(application.isReady());
    const QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("com.kelvane.meetlynx"), QStringLiteral("/com/kelvane/meetlynx"),
        QStringLiteral("com.kelvane.meetlynx.Contact1"), QStringLiteral("Request"));
    message.setArguments({QStringLiteral("Never"), QString(), qint64(0), QString()});
    std::vector<QDBusPendingCall> calls;
    for (int i = 0; i < requestCount; ++i) {
        calls.push_back(bus.asyncCall(message, 60000));
    }
    // Sent after all of them on the same connection.
    message.setArguments({QStringLiteral("Echo"), QStringLiteral("last"), qint64(0), QString()});
    QCOMPARE(bus.call(message, QDBus::Block, 10000).type(), QDBusMessage::ReplyMessage);
    const auto failed = std::count_if(calls.cbegin(), calls.cend(),
                                      [](const QDBusPendingCall &call) { return call.isFinished(); });
    QCOMPARE(int(failed), 0);
}

QTEST_GUILESS_MAIN(TestContactAbility)
#include "tst_contactability.moc"
