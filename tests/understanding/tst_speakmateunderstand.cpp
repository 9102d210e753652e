// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "programrun.h"
#include "sentencefile.h"
#include "testcolumns.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryFile>
#include <QtTest>

/// The program, as used in a pipe.
class TestSpeakmateUnderstand : public QObject
{
    Q_OBJECT

private:
    static ProgramRun run(const QStringList &arguments, const QByteArray &input = QByteArray())
    {
        return runProgram(QStringLiteral(UNDERSTAND_PROGRAM), arguments, input);
    }
    static QList<QByteArray> linesOf(const ProgramRun &result)
    {
        QList<QByteArray> all = result.output.split('\n');
        all.removeLast();
        return all;
    }

    static QStringList atNoon() { return {QStringLiteral("--now"), QStringLiteral("2026-03-07T12:00:00")}; }

private Q_SLOTS:
    void everyLineGetsOneLine_data()
    {
        addColumns<QByteArray, QStringList>({"input", "meanings"});
        QTest::newRow("a sentence") << QByteArray("开会\n")
                                    << QStringList{QStringLiteral("CREATE_CONFERENCE open=开")};
        QTest::newRow("no line at all") << QByteArray() << QStringList();
        QTest::newRow("an empty line") << QByteArray("\n") << QStringList{QStringLiteral("? not-understood")};
        QTest::newRow("a last line without its end")
            << QByteArray("开会\n散会")
            << QStringList{QStringLiteral("CREATE_CONFERENCE open=开"), QStringLiteral("CLOSE_CONFERENCE")};
        QTest::newRow("line ends of another system")
            << QByteArray("散会\r\n") << QStringList{QStringLiteral("CLOSE_CONFERENCE")};
        QTest::newRow("bytes that are no text")
            << QByteArray("\xff\xfe和\xe5\xbc开会\n散会\n")
            << QStringList{QStringLiteral("? not-understood"), QStringLiteral("CLOSE_CONFERENCE")};
        QTest::newRow("a null byte") << QByteArray("\0\n", 2)
                                     << QStringList{QStringLiteral("? not-understood")};
        QTest::newRow("a line too long to read")
            << QByteArray(200000, 'x') + "开会\n散会\n"
            << QStringList{QStringLiteral("? too-long"), QStringLiteral("CLOSE_CONFERENCE")};
        QTest::newRow("each sentence stands alone")
            << QByteArray("加入会议\n123456\n")
            << QStringList{QStringLiteral("? which-conference"), QStringLiteral("? not-understood")};
    }
    void everyLineGetsOneLine()
    {
        QFETCH(QByteArray, input);
        QFETCH(QStringList, meanings);
        const ProgramRun result = run(atNoon(), input);
        QCOMPARE(result.status, 0);
        QCOMPARE(result.errors, QByteArray());
        QStringList found;
        const auto lines = linesOf(result);
        for (const QByteArray &line : lines) {
            found.append(meaningOf(QString::fromUtf8(line)));
        }
        QCOMPARE(found, meanings);
    }

    void timesAreResolvedAgainstNow()
    {
        const ProgramRun result = run(atNoon(), "半小时后开会\n");
        QCOMPARE(meaningOf(QString::fromUtf8(result.output)),
                 inOrder(QStringLiteral("CREATE_CONFERENCE open=开 datetime=2026-03-07T12:30")));
    }

    void knownNamesAreReadFromAFile()
    {
        QTemporaryFile names;
        QVERIFY(names.open());
        names.write("周一鸣\r\n\n 欧阳雪 \n");
        names.close();
        const ProgramRun result =
            run(atNoon() << QStringLiteral("--contacts") << names.fileName(), "周一鸣欧阳雪开会\n");
        QCOMPARE(meaningOf(QString::fromUtf8(result.output)),
                 inOrder(QStringLiteral("CREATE_CONFERENCE open=开 name=周一鸣 name=欧阳雪")));
    }

    void answersComeWhileThePipeIsOpen()
    {
        QProcess process;
        process.start(QStringLiteral(UNDERSTAND_PROGRAM), atNoon());
        process.write("散会\n");
        QVERIFY(process.waitForReadyRead(30000));
        QCOMPARE(meaningOf(QString::fromUtf8(process.readLine())), QStringLiteral("CLOSE_CONFERENCE"));
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished(30000));
    }

    void wrongUsageIsRefused_data()
    {
        addColumns<QStringList, int, QByteArray>({"arguments", "exitCode", "says"});
        QTest::newRow("a now that is no time")
            << QStringList{QStringLiteral("--now"), QStringLiteral("noon")} << 2 << QByteArray("--now");
        QTest::newRow("a file that is not there")
            << QStringList{QStringLiteral("--contacts"), QStringLiteral("/no/such/file")} << 1
            << QByteArray("/no/such/file");
        QTest::newRow("a sentence as argument")
            << QStringList{QStringLiteral("开会")} << 2 << QByteArray("standard input");
        QTest::newRow("an unknown option") << QStringList{QStringLiteral("--wat")} << 1 << QByteArray("wat");
    }
    void wrongUsageIsRefused()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, says);
        const ProgramRun result = run(arguments);
        QCOMPARE(result.status, exitCode);
        QVERIFY2(result.errors.contains(says), result.errors.constData());
        QVERIFY(result.output.isEmpty());
    }

    void helpAndVersionAreThere()
    {
        const ProgramRun help = run({QStringLiteral("--help")});
        QCOMPARE(help.status, 0);
        QVERIFY(help.output.contains("--now") && help.output.contains("--contacts"));
        const ProgramRun version = run({QStringLiteral("--version")});
        QCOMPARE(version.status, 0);
        QVERIFY(version.output.startsWith("speakmate-understand "));
    }

    void itIsFastEnough()
    {
        QByteArray input;
        int count = 0;
        const auto rows =
            readSentences(QStringLiteral(CONTACT_SOURCE_DIR "/tests/understanding/sentences.tsv"));
        while (count < 20000) {
            for (const LabelledSentence &row : rows) {
                input += row.sentence.toUtf8() + '\n';
            }
            count += static_cast<int>(rows.size());
        }
        QElapsedTimer timer;
        timer.start();
        const ProgramRun result = run(atNoon(), input);
        QCOMPARE(linesOf(result).size(), count);
        qInfo("%lld sentences per second", count * 1000LL / qMax<qint64>(1, timer.elapsed()));
        // Takes half a second on an idle machine, much longer under load or a sanitizer.
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_GUILESS_MAIN(TestSpeakmateUnderstand)
#include "tst_speakmateunderstand.moc"
