// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "programrun.h"
#include "programtest.h"
#include "semantics.h"
#include "silentsocket.h"
#include "testcolumns.h"

#include <QImage>
#include <QProcess>
#include <QtTest>

namespace {

struct Run
{
    int status;
    QList<QByteArray> output;
    QByteArray errors;
};

Run run(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    const ProgramRun result = runProgram(QStringLiteral(DEVHOST), arguments, input);
    QList<QByteArray> lines = result.output.split('\n');
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return {result.status, lines, result.errors};
}

QStringList withPlugin(QStringList arguments)
{
    return arguments << QStringLiteral("--plugin") << QStringLiteral(TEST_PLUGIN);
}

} // namespace

/// The program from outside: text modes, messages and exit codes.
class TestDevhostProgram : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void batchAnswersLineByLine();
    void brokenLinesAreNamedAndTheRestGoesOn();
    void throwingPluginBreaksOneLine();
    void cardsArePicturedAndNamed();
    void batchReadsAFile();
    void wrongUsageEndsWithTwo_data();
    void wrongUsageEndsWithTwo();
    void unusablePluginEndsWithThree();
    void helpAndVersionNeedNothing();
    void conversationIsPrinted();
    void logGoesToTheTerminalOnlyWhenAsked();
    void silentBusKeepsNobody_data();
    void silentBusKeepsNobody();
};

void TestDevhostProgram::batchAnswersLineByLine()
{
    const QByteArray input = semantic("ECHO", QStringLiteral("一")).toUtf8() + "\n\n" +
                             semantic("ECHO", QStringLiteral("二")).toUtf8();
    const Run result = run(withPlugin({QStringLiteral("--batch"), QStringLiteral("-")}), input);
    QCOMPARE(
        result.output,
        QList<QByteArray>({"{\"code\":0,\"display\":\"一\",\"speech\":\"一\",\"type\":3,\"card\":null}",
                           "{\"code\":0,\"display\":\"二\",\"speech\":\"二\",\"type\":3,\"card\":null}"}));
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QByteArray());
}

void TestDevhostProgram::brokenLinesAreNamedAndTheRestGoesOn()
{
    const QByteArray input = "nonsense\n" + semantic("ECHO", QStringLiteral("a")).toUtf8() + "\n[]\n\xff\n" +
                             QByteArray(1024 * 1024 + 1, 'x') + "\n" +
                             semantic("ECHO", QStringLiteral("b")).toUtf8() + "\n";
    const Run result = run(withPlugin({QStringLiteral("--batch"), QStringLiteral("-")}), input);
    QCOMPARE(result.output.size(), 2);
    QVERIFY(result.output.at(1).contains("\"b\""));
    QCOMPARE(result.status, 1);
    for (const char *message : {"line 1: not JSON", "line 3: not a JSON object", "line 4: not UTF-8",
                                "line 5: longer than 1 MiB"}) {
        QVERIFY2(result.errors.contains(message), result.errors.constData());
    }
    QVERIFY(!result.errors.contains("line 2"));
}

void TestDevhostProgram::throwingPluginBreaksOneLine()
{
    const QByteArray input =
        semantic("THROW").toUtf8() + "\n" + semantic("ECHO", QStringLiteral("b")).toUtf8() + "\n";
    const Run result = run(withPlugin({QStringLiteral("--batch"), QStringLiteral("-")}), input);
    QCOMPARE(result.output.size(), 1);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains("line 1: The plugin's service() threw: thrown on purpose"),
             result.errors.constData());
}

void TestDevhostProgram::cardsArePicturedAndNamed()
{
    const QTemporaryDir folder;
    const QString pictures = folder.filePath(QStringLiteral("new/pictures"));
    const QByteArray input = semantic("ECHO", QStringLiteral("a")).toUtf8() + "\n" +
                             semantic("CARD", QStringLiteral("卡")).toUtf8() + "\n";
    const Run result = run(withPlugin({QStringLiteral("--batch"), QStringLiteral("-"),
                                       QStringLiteral("--screenshots"), pictures}),
                           input);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output.size(), 2);
    const QJsonObject card =
        QJsonDocument::fromJson(result.output.at(1)).object().value(QLatin1String("card")).toObject();
    QCOMPARE(card.value(QLatin1String("class")).toString(), QStringLiteral("QWidget"));
    QCOMPARE(card.value(QLatin1String("screenshot")).toString(), QStringLiteral("line-0002.png"));
    const QImage picture(pictures + QStringLiteral("/line-0002.png"));
    QCOMPARE(picture.size(),
             QSize(card.value(QLatin1String("width")).toInt(), card.value(QLatin1String("height")).toInt()));
    QVERIFY(picture.width() > 20);
}

void TestDevhostProgram::batchReadsAFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(semantic("ECHO", QStringLiteral("a")).toUtf8());
    file.close();
    const Run result = run(withPlugin({QStringLiteral("--batch"), file.fileName()}));
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output.size(), 1);
    QVERIFY(file.open());
    file.resize(0);
    file.close();
    QCOMPARE(run(withPlugin({QStringLiteral("--batch"), file.fileName()})).status, 0);
}

void TestDevhostProgram::wrongUsageEndsWithTwo_data()
{
    addColumns<QStringList, QByteArray>({"arguments", "told"});
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--converse"), QStringLiteral("--nonsense")}
                                    << QByteArray("nonsense");
    QTest::newRow("no file") << QStringList{QStringLiteral("--batch"), QStringLiteral("/nowhere")}
                             << QByteArray("/nowhere");
    QTest::newRow("a folder") << QStringList{QStringLiteral("--batch"), QStringLiteral("/")}
                              << QByteArray("cannot be read");
    QTest::newRow("two modes") << QStringList{QStringLiteral("--batch"), QStringLiteral("-"),
                                              QStringLiteral("--converse")}
                               << QByteArray("exclude");
    QTest::newRow("a service and more")
        << QStringList{QStringLiteral("--service"), QStringLiteral("--converse")} << QByteArray("exclude");
    QTest::newRow("an argument too many")
        << QStringList{QStringLiteral("--batch"), QStringLiteral("-"), QStringLiteral("x")}
        << QByteArray("'x'");
    QTest::newRow("an unknown theme") << QStringList{QStringLiteral("--batch"), QStringLiteral("-"),
                                                     QStringLiteral("--theme"), QStringLiteral("pink")}
                                      << QByteArray("light, dark or system");
}

void TestDevhostProgram::wrongUsageEndsWithTwo()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, told);
    const Run result = run(withPlugin(arguments));
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.contains(told), result.errors.constData());
    QVERIFY(result.output.isEmpty());
}

void TestDevhostProgram::unusablePluginEndsWithThree()
{
    const Run result = run({QStringLiteral("--batch"), QStringLiteral("-"), QStringLiteral("--plugin"),
                            QStringLiteral("/nowhere/x.so")});
    QCOMPARE(result.status, 3);
    QVERIFY2(result.errors.contains("There is no plugin /nowhere/x.so"), result.errors.constData());
}

void TestDevhostProgram::helpAndVersionNeedNothing()
{
    const Run help = run({QStringLiteral("--help")});
    QCOMPARE(help.status, 0);
    for (const char *option : {"--batch", "--converse", "--plugin", "--screenshots", "--theme", "--verbose",
                               "--script", "--contacts", "--service"}) {
        QVERIFY2(help.output.join('\n').contains(option), option);
    }
    const Run version = run({QStringLiteral("--version")});
    QCOMPARE(version.status, 0);
    QVERIFY(version.output.first().startsWith("speakmate-devhost "));
}

void TestDevhostProgram::conversationIsPrinted()
{
    const QByteArray input = "# a comment\n" + semantic("CARD", QStringLiteral("看卡片")).toUtf8() + "\n" +
                             semantic("ASKPASSWORD").toUtf8() + "\n";
    const Run result =
        run(withPlugin({QStringLiteral("--converse"), QStringLiteral("--language"), QStringLiteral("zh_CN")}),
            input);
    QCOMPARE(result.status, 0);
    const QString printed = QString::fromUtf8(result.output.join('\n'));
    QVERIFY(printed.contains(QStringLiteral("语义 JSON CARD  ：你")));
    QVERIFY(printed.contains(QStringLiteral("助手：看卡片\n      │ 一张卡片\n      │ [按我]")));
    QVERIFY(printed.contains(QStringLiteral("助手：请输入密码:  (-16014)")));
    QVERIFY2(!printed.contains(QLatin1Char('\033')), "colours in output that is no terminal");
    QVERIFY(!printed.contains(QStringLiteral("comment")));
}

void TestDevhostProgram::logGoesToTheTerminalOnlyWhenAsked()
{
    const QByteArray input = semantic("ECHO", QStringLiteral("a")).toUtf8();
    const QStringList arguments = withPlugin({QStringLiteral("--batch"), QStringLiteral("-")});
    QVERIFY(run(arguments, input).errors.isEmpty());
    QVERIFY(run(arguments + QStringList{QStringLiteral("--verbose")}, input)
                .errors.contains("service ECHO on another thread"));
}

void TestDevhostProgram::silentBusKeepsNobody_data()
{
    QTest::addColumn<QString>("mode");
    QTest::newRow("window") << "--script";
    QTest::newRow("conversation") << "--converse";
}

void TestDevhostProgram::silentBusKeepsNobody()
{
    QFETCH(const QString, mode);
    const QString path = m_runtime.filePath(QStringLiteral("silent"));
    QFile::remove(path);
    const SilentSocket socket(path);
    QVERIFY(socket.isListening());
    QFile conversation(m_runtime.filePath(QStringLiteral("conversation.txt")));
    QVERIFY(conversation.open(QIODevice::WriteOnly));
    conversation.write("查询今天的会议\n");
    conversation.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=") + path);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(DEVHOST), withPlugin({mode, conversation.fileName()}));
    const bool hasEnded = process.waitForFinished(30000);
    process.kill();
    process.waitForFinished();
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(hasEnded, errors.constData());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == 0, errors.constData());
}

QTEST_MAIN(TestDevhostProgram)
#include "tst_devhostprogram.moc"
