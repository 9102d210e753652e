// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "abilitycall.h"
#include "applicationlink.h"
#include "cardpicture.h"
#include "cardsummary.h"
#include "cleantext.h"
#include "correction.h"
#include "help.h"
#include "inputhistory.h"
#include "knownnames.h"
#include "linereader.h"
#include "logrecorder.h"
#include "replyjson.h"
#include "secrets.h"
#include "silentsocket.h"
#include "testcolumns.h"
#include "textlayout.h"

#include <kelvane/abilitycodes.h>
#include <kelvane/kelvaneabilitymanager.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>
#include <sstream>

using namespace devhost;

/// Small units of the host that need neither a plugin nor a window.
class TestHostPieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreShownWithoutWhatHides_data();
    void textsAreShownWithoutWhatHides();
    void endlessTextsEnd();
    void linesAreReadWithinBounds();
    void passwordsAreFoundInSlotsOnly();
    void passwordsAreBlottedOut();
    void historyGoesUpAndDownAndKeepsTheBegunLine();
    void historyForgetsSecrets();
    void replyKeysStandInOrder();
    void cardIsDescribedInTheReply();
    void textsWrapByTheirWidthInATerminal();
    void traceIsReadAsARequest();
    void whatWasDoneAfterAllIsSaidWithTheNextAnswer();
    void cardIsSummarisedRowByRow();
    void theHelpNamesThreePeople();
    void ofTooManyLogRecordsTheNewestStay();
    void silentBusKeepsNeitherTheDeskNorARequest();
};

void TestHostPieces::textsAreShownWithoutWhatHides_data()
{
    addColumns<QString, QString>({"text", "shown"});
    QTest::newRow("plain text stays") << QStringLiteral("张伟 <b>x</b>") << QStringLiteral("张伟 <b>x</b>");
    QTest::newRow("line breaks stay, tabs become blanks")
        << QStringLiteral("a\nb\tc") << QStringLiteral("a\nb c");
    QTest::newRow("control characters go")
        << QStringLiteral("a\x01\x1b[31mb\x7f") << QStringLiteral("a[31mb");
    QTest::newRow("an override of the direction goes")
        << QStringLiteral("a\u202eb\u2066c") << QStringLiteral("abc");
    QTest::newRow("invisible blanks go") << QStringLiteral("a\u200bb\ufeffc") << QStringLiteral("abc");
    QTest::newRow("a joined emoji stays whole")
        << QStringLiteral("👩\u200d💻") << QStringLiteral("👩\u200d💻");
    QTest::newRow("half a character goes")
        << QString(QChar(0xd83d)) + QLatin1Char('a') << QStringLiteral("a");
}

void TestHostPieces::textsAreShownWithoutWhatHides()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    if (QByteArray(QTest::currentDataTag()).startsWith("half")) {
        QVERIFY(cleanText(text).endsWith(QLatin1Char('a')));
        return;
    }
    QCOMPARE(cleanText(text), shown);
}

void TestHostPieces::endlessTextsEnd()
{
    const QString shown = cleanText(QString(1000000, QLatin1Char('x')));
    QCOMPARE(shown.size(), 20001);
    QVERIFY(shown.endsWith(QChar(0x2026)));
}

void TestHostPieces::linesAreReadWithinBounds()
{
    std::istringstream input("\xef\xbb\xbf"
                             "first\r\n"
                             "0123456789A\n"
                             "\xff\xfe\n"
                             "0123456789\n\nlast");
    LineReader reader(input, 10);
    QString line;
    QCOMPARE(reader.read(line), LineReader::Line);
    QCOMPARE(line, QStringLiteral("first"));
    QCOMPARE(reader.lineNumber(), 1);
    QCOMPARE(reader.read(line), LineReader::TooLong);
    QVERIFY(line.isEmpty());
    QCOMPARE(reader.read(line), LineReader::NotUtf8);
    QCOMPARE(reader.read(line), LineReader::Line);
    QCOMPARE(line, QStringLiteral("0123456789"));
    QCOMPARE(reader.read(line), LineReader::Line);
    QVERIFY(line.isEmpty());
    QCOMPARE(reader.read(line), LineReader::Line);
    QCOMPARE(line, QStringLiteral("last"));
    QCOMPARE(reader.lineNumber(), 6);
    QCOMPARE(reader.read(line), LineReader::End);
}

void TestHostPieces::passwordsAreFoundInSlotsOnly()
{
    const QString semantic = QStringLiteral(
        R"({"intent":{"semantic":[{"intent":"X","slots":[{"name":"id","value":"880"},{"name":"password","value":"24 68","normValue":"2468"}]}]}})");
    QCOMPARE(secretsIn(semantic), QStringList({QStringLiteral("24 68"), QStringLiteral("2468")}));
    QVERIFY(secretsIn(QStringLiteral("no json")).isEmpty());
    QVERIFY(secretsIn(QStringLiteral("{\"name\":\"password\",\"value\":\"\"}")).isEmpty());
}

void TestHostPieces::passwordsAreBlottedOut()
{
    QCOMPARE(withoutSecrets(QStringLiteral("pass 2468, again 2468"), {QStringLiteral("2468")}),
             QStringLiteral("pass ••••, again ••••"));
}

void TestHostPieces::historyGoesUpAndDownAndKeepsTheBegunLine()
{
    InputHistory history;
    QCOMPARE(history.older(QStringLiteral("begun")), QStringLiteral("begun"));
    history.add(QStringLiteral("one"));
    history.add(QStringLiteral("two"));
    history.add(QStringLiteral("two"));
    QCOMPARE(history.older(QStringLiteral("begun")), QStringLiteral("two"));
    QCOMPARE(history.older(QStringLiteral("two")), QStringLiteral("one"));
    QCOMPARE(history.older(QStringLiteral("one")), QStringLiteral("one"));
    QCOMPARE(history.newer(QStringLiteral("one")), QStringLiteral("two"));
    QCOMPARE(history.newer(QStringLiteral("two")), QStringLiteral("begun"));
    QCOMPARE(history.newer(QStringLiteral("begun")), QStringLiteral("begun"));
}

void TestHostPieces::historyForgetsSecrets()
{
    InputHistory history;
    history.add(QStringLiteral("one"));
    history.add(QStringLiteral("2468"));
    history.remove(QStringLiteral("2468"));
    QCOMPARE(history.older(QString()), QStringLiteral("one"));
}

void TestHostPieces::replyKeysStandInOrder()
{
    Reply reply(-16007, QStringLiteral("\"引号\"\n"), Reply::Texts);
    reply.speechText = QStringLiteral("说");
    QCOMPARE(
        replyJson(reply, nullptr),
        QByteArray(
            "{\"code\":-16007,\"display\":\"\\\"引号\\\"\\n\",\"speech\":\"说\",\"type\":3,\"card\":null}"));
}

void TestHostPieces::cardIsDescribedInTheReply()
{
    CardNote note{QStringLiteral("Card"), 10, 20, QString()};
    const Reply reply(0, QStringLiteral("x"), Reply::TextsAndCard);
    QVERIFY(replyJson(reply, &note)
                .endsWith(",\"type\":11,\"card\":{\"class\":\"Card\",\"width\":10,\"height\":20}}"));
    note.screenshot = QStringLiteral("a.png");
    QVERIFY(replyJson(reply, &note).endsWith("\"height\":20,\"screenshot\":\"a.png\"}}"));
}

void TestHostPieces::textsWrapByTheirWidthInATerminal()
{
    QCOMPARE(terminalWidth(QStringLiteral("会a，")), 5);
    QCOMPARE(wrapped(QStringLiteral("会议abc"), 5),
             QStringList({QStringLiteral("会议a"), QStringLiteral("bc")}));
    QCOMPARE(wrapped(QStringLiteral("a\nb"), 5), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(wrapped(QString(), 5), QStringList({QString()}));
}

void TestHostPieces::traceIsReadAsARequest()
{
    LogRecord record;
    record.category = "kelvane.ability";
    record.text = QStringLiteral(
        R"({"action":"Join Conference","answer":"{}","code":-16020,"ms":12.5,"parameters":"{\"a\":1}"})");
    AbilityCall call;
    QVERIFY(AbilityCall::read(record, call));
    QCOMPARE(call.action, QStringLiteral("Join Conference"));
    QCOMPARE(call.parameters, QStringLiteral("{\"a\":1}"));
    QCOMPARE(call.code, -16020);
    QCOMPARE(call.msecs, 12.5);
    QVERIFY(!call.isPerformedAfterAll);
    record.text = QStringLiteral(R"({"action":"Create Conference","performedAfterAll":true})");
    QVERIFY(AbilityCall::read(record, call));
    QVERIFY(call.isPerformedAfterAll);
    record.category = "default";
    QVERIFY(!AbilityCall::read(record, call));
}

void TestHostPieces::whatWasDoneAfterAllIsSaidWithTheNextAnswer()
{
    Reply reply;
    reply.displayText = QStringLiteral("好的。");
    reply.speechText = QStringLiteral("好的");
    correctFormerTurns({}, reply);
    QCOMPARE(reply.displayText.toString(), QStringLiteral("好的。"));
    correctFormerTurns({QStringLiteral("Create Conference"), QStringLiteral("Fly")}, reply);
    QCOMPARE(reply.displayText.toString(),
             QStringLiteral("更正：之前没有等到答复的“创建会议”其实已经完成。"
                            "更正：之前没有等到答复的“Fly”其实已经完成。好的。"));
    QVERIFY(reply.speechText.toString().startsWith(QStringLiteral("更正：")));
    QVERIFY(reply.speechText.toString().endsWith(QStringLiteral("好的")));
}

void TestHostPieces::cardIsSummarisedRowByRow()
{
    QWidget card;
    auto *form = new QFormLayout(&card);
    auto *title = new QLabel(QStringLiteral("<b>标题</b>"), &card);
    title->setTextFormat(Qt::PlainText);
    form->addRow(title);
    auto *combo = new QComboBox(&card);
    combo->addItem(QStringLiteral("1小时"));
    form->addRow(QStringLiteral("时长"), combo);
    auto *hidden = new QLabel(QStringLiteral("藏着"), &card);
    hidden->hide();
    form->addRow(hidden);
    form->addRow(new QPushButton(QStringLiteral("确定(&O)"), &card));
    giveCardItsSize(card);
    const QImage picture = cardPicture(card);
    QCOMPARE(picture.size(), card.size());
    QCOMPARE(cardSummary(card), QStringList({QStringLiteral("<b>标题</b>"), QStringLiteral("时长  <1小时>"),
                                             QStringLiteral("[确定(O)]")}));
}

void TestHostPieces::theHelpNamesThreePeople()
{
    const QString text = help::text({QStringLiteral("甲一"), QStringLiteral("乙二"), QStringLiteral("丙三")});
    QVERIFY2(text.contains(QStringLiteral("叫上甲一和乙二")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("邀请丙三加入会议")), qPrintable(text));
    // Missing names are filled in from the sample.
    QVERIFY(help::text({QStringLiteral("甲一")}).contains(QStringLiteral("叫上甲一和赵磊")));
}

void TestHostPieces::ofTooManyLogRecordsTheNewestStay()
{
    constexpr int most = 4000;
    LogRecorder logs;
    for (int i = 0; i <= most; ++i) {
        qDebug("%d", i);
    }
    const QVector<LogRecord> records = logs.take();
    QCOMPARE(records.size(), most);
    QCOMPARE(records.first().text, QStringLiteral("1"));
    QCOMPARE(records.last().text, QString::number(most));
    QVERIFY(logs.take().isEmpty());
}

void TestHostPieces::silentBusKeepsNeitherTheDeskNorARequest()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bus"));
    const SilentSocket socket(path);
    QVERIFY(socket.isListening());
    const QByteArray former = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(path));
    QElapsedTimer timer;
    timer.start();
    int code = 0;
    {
        KnownNames names;
        ApplicationLink link;
        link.refresh();
        link.openWindow();
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(names.firstNames(50), QStringList());
        const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
        ability->setTimeout(300);
        QString answer;
        code = ability->request(QStringLiteral("Is Conference Host"), QString(), answer);
    }
    const qint64 elapsed = timer.elapsed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", former);
    QCOMPARE(code, int(AbilityCode::TimedOut));
    QVERIFY2(elapsed < 5000, qPrintable(QString::number(elapsed)));
}

QTEST_MAIN(TestHostPieces)
#include "tst_hostpieces.moc"
