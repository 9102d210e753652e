// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "logcapture.h"
#include "semantic/semanticparser.h"
#include "testcolumns.h"

#include <QJsonDocument>
#include <QtTest>

#include <cstddef>
#include <new>

// The order of members is part of the binary layout.
static_assert(offsetof(CloudIntent, name) == 0 && offsetof(CloudIntent, slotList) == sizeof(QString));
static_assert(sizeof(CloudSlot) == sizeof(QVariantMap) &&
              sizeof(CloudSemantic) == sizeof(QVector<CloudIntent>));

namespace {

const QString NoSemantic = QStringLiteral("debug: Can not parse semantic, root name must be:  semantic");
const QString BadIntent = QStringLiteral("debug: Parse intent failed, please check intent.");
const QString IncompleteIntent =
    QStringLiteral("debug: Parse intent failed, json must contain:  intent ,  slots");
const QString SlotIsNoObject = QStringLiteral("critical: Parse slot failed, slot is not a object");
const QString SlotWithoutName = QStringLiteral("critical: Every slot must contain a name");
const QString BadSlot = QStringLiteral("debug: Parse slot failed, please check slot.");

QString answerWith(const QByteArray &semantic)
{
    return QStringLiteral(R"({"intent": {"semantic": %1}, "sid": "x"})").arg(QString::fromUtf8(semantic));
}

/// Whether nothrow allocations succeed.
bool hasMemory = true;

} // namespace

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return hasMemory ? ::operator new(size) : nullptr;
}

class TestSemanticParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void intentsAndSlotsKeepTheirOrderAndMembers()
    {
        const LogCapture log;
        SemanticParser parser;
        QVERIFY(parser.parseSemanticJson(answerWith(
            R"([{"intent": "CREATE_CONFERENCE", "slots": [
                   {"name": "name", "value": "小李", "normValue": "李雷", "extra": {"n": [1, true]}},
                   {"name": "datetime", "value": "明天"}]},
                {"intent": "ADD_BUDDY", "slots": []}])")));
        const QVector<CloudIntent> intents = parser.semantic().intents;
        QCOMPARE(intents.size(), 2);
        QCOMPARE(intents.at(0).name, QStringLiteral("CREATE_CONFERENCE"));
        QCOMPARE(intents.at(0).slotList.size(), 2);
        const QMap<QString, QVariant> slot = intents.at(0).slotList.at(0).map;
        QCOMPARE(slot.keys(), QStringList({QStringLiteral("extra"), QStringLiteral("name"),
                                           QStringLiteral("normValue"), QStringLiteral("value")}));
        QCOMPARE(slot.value(QStringLiteral("value")).toString(), QStringLiteral("小李"));
        QCOMPARE(slot.value(QStringLiteral("normValue")).toString(), QStringLiteral("李雷"));
        QCOMPARE(slot.value(QStringLiteral("extra")).toMap().value(QStringLiteral("n")).toList().size(), 2);
        QCOMPARE(intents.at(0).slotList.at(1).map.value(QStringLiteral("name")).toString(),
                 QStringLiteral("datetime"));
        QCOMPARE(intents.at(1).name, QStringLiteral("ADD_BUDDY"));
        QVERIFY(intents.at(1).slotList.isEmpty());
        QCOMPARE(log.lines(), QStringList());
    }

    void noIntentsIsASuccess_data()
    {
        QTest::addColumn<QString>("json");
        QTest::newRow("empty array") << answerWith("[]");
        for (const char *other : {"{}", "\"text\"", "7", "null", "true"}) {
            QTest::addRow("%s in the array's place", other) << answerWith(other);
        }
    }
    void noIntentsIsASuccess()
    {
        QFETCH(QString, json);
        const LogCapture log;
        SemanticParser parser;
        QVERIFY(parser.parseSemanticJson(json));
        QVERIFY(parser.semantic().intents.isEmpty());
        QCOMPARE(log.lines(), QStringList());
    }

    void failuresAreLogged_data()
    {
        addColumns<QString, QStringList>({"json", "lines"});
        const QStringList rejected{NoSemantic};
        QTest::newRow("empty text") << QString() << rejected;
        QTest::newRow("not JSON") << QStringLiteral("create a conference") << rejected;
        QTest::newRow("broken off") << QStringLiteral(R"({"intent": {"semantic": [)") << rejected;
        QTest::newRow("array root") << QStringLiteral(R"([{"intent": {"semantic": []}}])") << rejected;
        QTest::newRow("semantic without the intent around it")
            << QStringLiteral(R"({"semantic": [{"intent": "A", "slots": []}]})") << rejected;
        QTest::newRow("intent is empty") << QStringLiteral(R"({"intent": {}})") << rejected;
        QTest::newRow("intent is a string") << QStringLiteral(R"({"intent": "A"})") << rejected;
        QTest::newRow("intent without semantic")
            << QStringLiteral(R"({"intent": {"answer": {}}})") << rejected;
        QTest::newRow("two thousand levels deep")
            << answerWith(QByteArray("[").repeated(2000) + QByteArray("]").repeated(2000)) << rejected;

        const QStringList incomplete{IncompleteIntent, BadIntent};
        QTest::newRow("slots missing") << answerWith(R"([{"intent": "A"}])") << incomplete;
        QTest::newRow("slots an object") << answerWith(R"([{"intent": "A", "slots": {}}])") << incomplete;
        QTest::newRow("intent name missing") << answerWith(R"([{"slots": []}])") << incomplete;
        QTest::newRow("intent name a number") << answerWith(R"([{"intent": 7, "slots": []}])") << incomplete;
        QTest::newRow("intent a string") << answerWith(R"(["A"])") << incomplete;

        const auto slotRow = [](const char *name, const char *slot, const QString &cause) {
            QTest::newRow(name) << answerWith(QByteArray(R"([{"intent": "A", "slots": [)") + slot + "]}]")
                                << QStringList({cause, BadSlot, BadIntent});
        };
        slotRow("slot without a name", R"({"value": "x"})", SlotWithoutName);
        slotRow("slot whose name is a number", R"({"name": 7})", SlotWithoutName);
        slotRow("slot whose name is null", R"({"name": null})", SlotWithoutName);
        slotRow("empty slot", "{}", SlotWithoutName);
        slotRow("second slot without a name", R"({"name": "a"}, {})", SlotWithoutName);
        slotRow("slot a string", R"("name")", SlotIsNoObject);
        slotRow("slot an array", "[]", SlotIsNoObject);
    }
    void failuresAreLogged()
    {
        QFETCH(QString, json);
        QFETCH(QStringList, lines);
        const LogCapture log(LogCapture::Unexpected::Passes);
        SemanticParser parser;
        QVERIFY(!parser.parseSemanticJson(json));
        QCOMPARE(log.lines(), lines);
    }

    void aParsedAnswerReadsLikeItsText_data()
    {
        failuresAreLogged_data();
        QTest::newRow("two intents") << answerWith(
                                            R"([{"intent": "A", "slots": [{"name": "n", "value": "v"}]},
                              {"intent": "B", "slots": []}])")
                                     << QStringList();
        QTest::newRow("no array") << answerWith("7") << QStringList();
    }
    void aParsedAnswerReadsLikeItsText()
    {
        QFETCH(QString, json);
        QFETCH(QStringList, lines);
        const LogCapture log(LogCapture::Unexpected::Passes);
        SemanticParser parser;
        QCOMPARE(parser.parseSemanticDocument(QJsonDocument::fromJson(json.toUtf8())), lines.isEmpty());
        QCOMPARE(log.lines(), lines);

        SemanticParser ofText;
        ofText.parseSemanticJson(json);
        QCOMPARE(parser.semantic().intents.size(), ofText.semantic().intents.size());
        for (int at = 0; at < parser.semantic().intents.size(); ++at) {
            QCOMPARE(parser.semantic().intents.at(at).name, ofText.semantic().intents.at(at).name);
            QCOMPARE(parser.semantic().intents.at(at).slotList.size(),
                     ofText.semantic().intents.at(at).slotList.size());
        }
    }

    void intentsBeforeABrokenOneStay()
    {
        SemanticParser parser;
        QVERIFY(!parser.parseSemanticJson(
            answerWith(R"([{"intent": "A", "slots": []}, {"intent": "B"}, {"intent": "C", "slots": []}])")));
        QCOMPARE(parser.semantic().intents.size(), 1);
        QCOMPARE(parser.semantic().intents.first().name, QStringLiteral("A"));
    }

    void parserReadsASecondText()
    {
        SemanticParser parser;
        QVERIFY(parser.parseSemanticJson(answerWith(R"([{"intent": "A", "slots": []}])")));
        QVERIFY(parser.parseSemanticJson(answerWith(R"([{"intent": "B", "slots": []}])")));
        QCOMPARE(parser.semantic().intents.last().name, QStringLiteral("B"));
    }

    void withoutMemoryForADocumentNothingIsRead()
    {
        const QString json = answerWith(R"([{"intent": "A", "slots": []}])");
        const LogCapture log(LogCapture::Unexpected::Passes);
        SemanticParser parser;
        QVERIFY(parser.parseSemanticJson(answerWith("[]")));
        hasMemory = false;
        const bool isRead = parser.parseSemanticJson(json);
        hasMemory = true;
        QVERIFY(!isRead);
        QVERIFY(parser.semantic().intents.isEmpty());
        QCOMPARE(log.lines(),
                 QStringList(QStringLiteral("debug: Parse semantic json error, invalid syntax:  ") +
                             QLatin1Char('"') +
                             QString(json).replace(QLatin1Char('"'), QLatin1String("\\\"")) +
                             QLatin1Char('"')));
        QVERIFY(parser.parseSemanticJson(json));
    }

    void recordsNameTheirSource_data()
    {
        addColumns<QString, QString, QByteArray>({"json", "text", "function"});
        QTest::newRow("semantic") << QString() << NoSemantic
                                  << QByteArray("bool CloudSemantic::parse(const QJsonValue&)");
        QTest::newRow("intent in the semantic")
            << answerWith("[{}]") << BadIntent << QByteArray("bool CloudSemantic::parse(const QJsonValue&)");
        QTest::newRow("intent") << answerWith("[{}]") << IncompleteIntent
                                << QByteArray("bool CloudIntent::parse(const QJsonValue&)");
        QTest::newRow("slot in the intent")
            << answerWith(R"([{"intent": "A", "slots": [7]}])") << SlotIsNoObject
            << QByteArray("bool CloudIntent::parse(const QJsonValue&)");
        QTest::newRow("slot") << answerWith(R"([{"intent": "A", "slots": [{}]}])") << SlotWithoutName
                              << QByteArray("bool CloudSlot::parse(const QJsonValue&)");
    }
    void recordsNameTheirSource()
    {
        QFETCH(QString, json);
        QFETCH(QString, text);
        QFETCH(QByteArray, function);
        const LogCapture log(LogCapture::Unexpected::Passes);
        SemanticParser().parseSemanticJson(json);
        const LogRecord record = log.find(text.section(QStringLiteral(": "), 1));
        QCOMPARE(LogCapture::signatureOf(record.function), function);
        QCOMPARE(record.file, QByteArray("sys_semantic_inc/semantic/semantic.h"));
        QCOMPARE(record.category, QByteArray("default"));
        QVERIFY(record.line > 0);
    }

    void parserHasAMetaObject()
    {
        QCOMPARE(sizeof(SemanticParser), sizeof(QObject) + sizeof(CloudSemantic) + sizeof(QJsonDocument *));
        QCOMPARE(SemanticParser().metaObject()->className(), "SemanticParser");
        QCOMPARE(SemanticParser::staticMetaObject.methodCount(), QObject::staticMetaObject.methodCount());
    }
};

QTEST_GUILESS_MAIN(TestSemanticParser)

#include "tst_semanticparser.moc"
