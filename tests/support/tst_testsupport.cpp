// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakeprocesstable.h"
#include "logcapture.h"
#include "paintedcontrast.h"
#include "scriptedability.h"

#include <kelvane/kelvaneabilitymanager.h>

#include <QProcess>
#include <QtDebug>
#include <QtTest>

#include <memory>
#include <stdexcept>
#include <thread>

namespace {

std::unique_ptr<ContactAbility> newAbility()
{
    return std::unique_ptr<ContactAbility>(KelvaneAbilityManager::instance()->createContact());
}

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.error() == QProcess::FailedToStart ? QByteArray("failed to start")
                                                      : process.readAllStandardOutput();
}

} // namespace

/// Tests the tests' own tools: if they fail, other results prove nothing.
class TestSupport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ScriptedAbility::instance().reset(); }

    void captureKeepsEverythingOfARecord()
    {
        LogCapture log;
        qDebug() << "text" << 5;
        const LogRecord record = log.find(QStringLiteral("text 5"));
        QCOMPARE(log.lines(), QStringList{QStringLiteral("debug: text 5")});
        QCOMPARE(record.category, QByteArray("default"));
        QCOMPARE(record.file, QByteArray("tests/support/tst_testsupport.cpp"));
        QCOMPARE(LogCapture::signatureOf(record.function),
                 QByteArray("void TestSupport::captureKeepsEverythingOfARecord()"));
        QVERIFY(record.line > 0);
    }

    void onlyAnEdgeThatIsMeasuredHasContrast()
    {
        QImage image(40, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int y = 10; y < 30; ++y) {
            for (int x = 10; x < 30; ++x) {
                image.setPixel(x, y, qRgb(0, 0, 0));
            }
        }
        QCOMPARE(qRound(PaintedContrast::ofEdge(image, QRect(10, 10, 20, 20))), 21);
        QCOMPARE(qRound(PaintedContrast::ofEdge(image, QRect(10, 12, 10, 10))), 1); // more black around it
        QCOMPARE(PaintedContrast::ofEdge(image, image.rect()), 1.0);
        QCOMPARE(PaintedContrast::ofEdge(image, QRect(100, 100, 20, 20)), 1.0);
        QCOMPARE(PaintedContrast::ofEdge(image, QRect(-20, -20, 80, 80)), 1.0);
    }

    void captureGivesTheRecordsBackToTheOuterOne()
    {
        LogCapture outer;
        {
            const LogCapture inner;
            qDebug("inside");
        }
        qDebug("outside");
        QCOMPARE(outer.lines(), QStringList{QStringLiteral("debug: outside")});
    }

    void unexpectedWarningIsAProblem()
    {
        const LogCapture log(LogCapture::Unexpected::Passes);
        qWarning("surprise");
        QCOMPARE(log.problems(), QStringList{QStringLiteral("unexpected log record: warning: surprise")});
    }

    void missingWarningIsAProblem()
    {
        LogCapture log(LogCapture::Unexpected::Passes);
        log.expect(QtWarningMsg, QStringLiteral("foretold"));
        QCOMPARE(log.problems(), QStringList{QStringLiteral("log record did not come: warning: foretold")});
    }

    void expectedWarningPasses()
    {
        LogCapture log;
        log.expect(QtWarningMsg, QStringLiteral("foreseen"));
        qWarning("foreseen");
        QCOMPARE(log.problems(), QStringList());
    }

    void answersComeFromTheQueueFirst()
    {
        ScriptedAbility &script = ScriptedAbility::instance();
        script.setAnswer(QStringLiteral("Act"), 0, QStringLiteral("set"));
        script.enqueue(7, QStringLiteral("queued"));
        const auto ability = newAbility();
        QString answer;
        QCOMPARE(ability->request(QStringLiteral("Act"), QString(), answer), 7);
        QCOMPARE(answer, QStringLiteral("queued"));
        QCOMPARE(ability->request(QStringLiteral("Act"), QString(), answer), 0);
        QCOMPARE(answer, QStringLiteral("set"));
    }

    void requestWithoutAPreparedAnswerIsReported()
    {
        LogCapture log;
        log.expect(QtWarningMsg, QStringLiteral("No answer was prepared for \"Act\"."));
        QString answer;
        QCOMPARE(newAbility()->request(QStringLiteral("Act"), QString(), answer),
                 int(ScriptedAbility::NothingPrepared));
    }

    void eventsAreRecordedInOrder()
    {
        ScriptedAbility &script = ScriptedAbility::instance();
        script.enqueue(0, QString());
        {
            const auto ability = newAbility();
            QCOMPARE(script.alive(), 1);
            ability->setTimeout(800);
            QString answer;
            ability->request(QStringLiteral("Act"), QStringLiteral("{}"), answer);
        }
        const QVector<AbilityEvent> events = script.events();
        QCOMPARE(events.size(), 4);
        QCOMPARE(events.at(0).kind, AbilityEvent::Created);
        QCOMPARE(events.at(1).kind, AbilityEvent::TimeoutSet);
        QCOMPARE(events.at(1).timeout, 800);
        QCOMPARE(events.at(2).action, QStringLiteral("Act"));
        QCOMPARE(events.at(2).parameters, QStringLiteral("{}"));
        QCOMPARE(events.at(2).timeout, 800);
        QCOMPARE(events.at(2).thread, QThread::currentThreadId());
        QCOMPARE(events.at(3).kind, AbilityEvent::Deleted);
        QCOMPARE(script.alive(), 0);
    }

    void nextRequestThrowsOnce()
    {
        ScriptedAbility &script = ScriptedAbility::instance();
        script.throwFromNextRequest("broken");
        script.enqueue(0, QString());
        const auto ability = newAbility();
        QString answer;
        QVERIFY_EXCEPTION_THROWN(ability->request(QString(), QString(), answer), std::runtime_error);
        QCOMPARE(ability->request(QString(), QString(), answer), 0);
    }

    void blockedRequestWaitsForItsRelease()
    {
        ScriptedAbility &script = ScriptedAbility::instance();
        script.enqueue(3, QString());
        script.block();
        int code = 0;
        std::thread caller([&code] {
            QString answer;
            code = newAbility()->request(QString(), QString(), answer);
        });
        QTRY_COMPARE(script.blocked(), 1);
        script.release();
        caller.join();
        QCOMPARE(code, 3);
        QCOMPARE(script.blocked(), 0);
    }

    void refusedCreationGivesNull()
    {
        ScriptedAbility::instance().refuseToCreate();
        QVERIFY(newAbility() == nullptr);
    }

    void fakeTableIsWhatPsPrints()
    {
        const QByteArray path = qgetenv("PATH");
        {
            const FakeProcessTable table(2);
            QCOMPARE(outputOf(QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("ps -ef")})
                         .count("/usr/bin/meetlynx\n"),
                     2);
            QCOMPARE(table.runs(), 1);
        }
        QCOMPARE(qgetenv("PATH"), path);
    }

    void thereIsNoPsWhenNoneIsWanted()
    {
        const FakeProcessTable table(FakeProcessTable::WithoutPs);
        QCOMPARE(outputOf(QStringLiteral("ps"), {}), QByteArray("failed to start"));
        QCOMPARE(outputOf(QStringLiteral("wc"), {QStringLiteral("--version")}).left(2), QByteArray("wc"));
    }
};

QTEST_GUILESS_MAIN(TestSupport)

#include "tst_testsupport.moc"
