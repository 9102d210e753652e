// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/semanticwriter.h"
#include "meaning/outcome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace understanding;

/// What is written has the meaning that a JSON parser reads, whatever was said.
class TestSemanticWriter : public QObject
{
    Q_OBJECT

private:
    static QJsonObject intentOf(const QString &json)
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &error);
        return error.error == QJsonParseError::NoError
                   ? document.object().value(QStringLiteral("intent")).toObject()
                   : QJsonObject();
    }

private Q_SLOTS:
    void aCommandKeepsItsSlotsInOrder()
    {
        Outcome outcome;
        outcome.intent = QLatin1String(CreateConference);
        outcome.addSlot(NameSlot, QStringLiteral("張偉"), QStringLiteral("张伟"));
        outcome.addSlot(OpenSlot, QStringLiteral("开"), QStringLiteral("开"));
        QCOMPARE(
            commandJson(outcome),
            QStringLiteral(R"({"intent":{"semantic":[{"intent":"CREATE_CONFERENCE","slots":[)"
                           R"({"name":"name","normValue":"张伟","value":"張偉"},)"
                           R"({"name":"open","normValue":"开","value":"开"}]}],"shouldEndSession":true}})"));
    }

    void aCommandMayHaveNoSlots()
    {
        Outcome outcome;
        outcome.intent = QLatin1String(CloseConference);
        QCOMPARE(commandJson(outcome),
                 QStringLiteral(R"({"intent":{"semantic":[{"intent":"CLOSE_CONFERENCE","slots":[]}],)"
                                R"("shouldEndSession":true}})"));
    }

    void anAnswerIsShownAndSpoken()
    {
        QCOMPARE(answerJson(QStringLiteral("要开会吗？")),
                 QStringLiteral(
                     R"({"intent":{"answer":{"text":"要开会吗？"},"semantic":[],"shouldEndSession":false,)"
                     R"("voice_answer":[{"content":"要开会吗？","type":"TTS"}]}})"));
    }

    void everyCharacterSurvives()
    {
        for (int code = 0; code <= 0xffff; ++code) {
            const QChar character(static_cast<ushort>(code));
            const QString said = QStringLiteral("a%1b").arg(character);
            const QJsonObject intent = intentOf(answerJson(said));
            const QString text =
                intent.value(QStringLiteral("answer")).toObject().value(QStringLiteral("text")).toString();
            QVERIFY2(text == said, qPrintable(QString::number(code, 16)));
        }
    }

    void charactersOutsideTheBasicPlaneSurvive()
    {
        Outcome outcome;
        outcome.intent = QLatin1String(InviteConference);
        const QString said = QStringLiteral("𠮷田\"\\\n😀");
        outcome.addSlot(NameSlot, said, said);
        const QJsonObject slot = intentOf(commandJson(outcome))
                                     .value(QStringLiteral("semantic"))
                                     .toArray()
                                     .first()
                                     .toObject()
                                     .value(QStringLiteral("slots"))
                                     .toArray()
                                     .first()
                                     .toObject();
        QCOMPARE(slot.value(QStringLiteral("value")).toString(), said);
        QCOMPARE(slot.value(QStringLiteral("normValue")).toString(), said);
    }
};

QTEST_APPLESS_MAIN(TestSemanticWriter)
#include "tst_semanticwriter.moc"
