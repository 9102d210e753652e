// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactutils.h"
#include "logcapture.h"
#include "testcolumns.h"

#include <QtTest>

class TestSemanticReaders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldEndSession_data()
    {
        addColumns<QString, bool, QString>({"json", "ends", "record"});
        const auto row = [](const char *name, const char *json, bool ends, const char *record = "") {
            QTest::newRow(name) << QString::fromUtf8(json) << ends << QString::fromUtf8(record);
        };
        row("true", R"({"intent": {"shouldEndSession": true}})", true);
        row("false", R"({"intent": {"shouldEndSession": false}})", false);
        row("no boolean: a text", R"({"intent": {"shouldEndSession": "false"}})", true);
        row("no boolean: a number", R"({"intent": {"shouldEndSession": 0}})", true);
        row("no boolean: null", R"({"intent": {"shouldEndSession": null}})", true);
        row("empty text", "", true, "doc.isNull()");
        row("not JSON", "false", true, "doc.isNull()");
        row("an array", "[]", true, "intent not exist");
        row("an empty object", "{}", true, "intent not exist");
        row("the key beside the intent", R"({"shouldEndSession": false})", true, "intent not exist");
        row("an empty intent", R"({"intent": {}})", true, "intentObject.empty()");
        row("an intent that is a text", R"({"intent": "x"})", true, "intentObject.empty()");
        row("an intent that does not say", R"({"intent": {"semantic": []}})", true,
            "shouldEndSession not exist");
    }
    void shouldEndSession()
    {
        QFETCH(QString, json);
        QFETCH(QString, record);
        const LogCapture log;
        QTEST(ContactUtils::analyzeIsShouldEndSession(json), "ends");
        QCOMPARE(log.lines(),
                 record.isEmpty() ? QStringList() : QStringList{QStringLiteral("debug: ") + record});
    }

    void voiceAnswers_data()
    {
        addColumns<QString, QString, QString>({"json", "shown", "spoken"});
        const QString untouched = QStringLiteral("(untouched)");
        const auto row = [](const char *name, const char *json, const QString &shown, const QString &spoken) {
            QTest::newRow(name) << QString::fromUtf8(json) << shown << spoken;
        };
        row("both",
            R"({"intent": {"answer": {"text": "几点？"}, "voice_answer": [{"type": "TTS", "content": "请问几点？"}]}})",
            QStringLiteral("几点？"), QStringLiteral("请问几点？"));
        row("only shown", R"({"intent": {"answer": {"text": "a"}}})", QStringLiteral("a"), untouched);
        row("only spoken", R"({"intent": {"voice_answer": [{"type": "TTS", "content": "b"}]}})", untouched,
            QStringLiteral("b"));
        row("empty texts",
            R"({"intent": {"answer": {"text": ""}, "voice_answer": [{"type": "TTS", "content": ""}]}})",
            QString(), QString());
        row("the first of two",
            R"({"intent": {"voice_answer": [{"type": "TTS", "content": "b"}, {"type": "TTS", "content": "c"}]}})",
            untouched, QStringLiteral("b"));
        row("other types first",
            R"({"intent": {"voice_answer": [{"type": "tts", "content": "a"}, {"content": "b"}, 7, {"type": "TTS", "content": "c"}]}})",
            untouched, QStringLiteral("c"));
        row("content that is no text is passed over",
            R"({"intent": {"voice_answer": [{"type": "TTS", "content": 7}, {"type": "TTS", "content": "c"}]}})",
            untouched, QStringLiteral("c"));
        row("text that is no text", R"({"intent": {"answer": {"text": 7}}})", untouched, untouched);
        row("answer that is no object",
            R"({"intent": {"answer": "a", "voice_answer": {"type": "TTS", "content": "b"}}})", untouched,
            untouched);
        row("not JSON", "hello", untouched, untouched);
        row("empty text", "", untouched, untouched);
        row("an array", "[]", untouched, untouched);
        row("no intent", R"({"answer": {"text": "a"}})", untouched, untouched);
        row("an empty intent", R"({"intent": {}})", untouched, untouched);
    }
    void voiceAnswers()
    {
        QFETCH(QString, json);
        QString shown = QStringLiteral("(untouched)");
        QString spoken = shown;
        const LogCapture log;
        ContactUtils::getVoiceAnswerContext(json, shown, spoken);
        QTEST(shown, "shown");
        QTEST(spoken, "spoken");
        QCOMPARE(log.lines(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestSemanticReaders)

#include "tst_semanticreaders.moc"
