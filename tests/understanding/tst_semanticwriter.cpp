// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/semanticwriter.h"
#include "testcolumns.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace understanding;

namespace {

QString compact(const QJsonObject &intent)
{
    const QJsonObject root{{QStringLiteral("intent"), intent}};
    return QString::fromUtf8(QJsonDocument(root).toJson(QJsonDocument::Compact));
}

/// The text that Qt writes for the object of @p outcome.
QString expectedCommand(const Outcome &outcome)
{
    QJsonArray slotArray;
    for (const Slot &slot : outcome.slotList) {
        slotArray.append(QJsonObject{{QStringLiteral("name"), slot.name},
                                     {QStringLiteral("value"), slot.value},
                                     {QStringLiteral("normValue"), slot.normValue}});
    }
    const QJsonObject semantic{{QStringLiteral("intent"), outcome.intent},
                               {QStringLiteral("slots"), slotArray}};
    return compact(
        {{QStringLiteral("semantic"), QJsonArray{semantic}}, {QStringLiteral("shouldEndSession"), true}});
}

} // namespace

class TestSemanticWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreEscapedAsQtDoes_data()
    {
        addColumns<QString>({"text"});
        QTest::newRow("plain") << QStringLiteral("李娜");
        QTest::newRow("empty") << QString();
        QTest::newRow("quotes") << QStringLiteral("\"李娜\"");
        QTest::newRow("backslashes") << QStringLiteral("李\\娜\\");
        QTest::newRow("backslash before a quote") << QStringLiteral("\\\"");
        QTest::newRow("a time, which is JSON") << QStringLiteral(R"({"datetime":"2026-11-22T15:00:00"})");
        QTest::newRow("tab and line break") << QStringLiteral("李\t娜\n");
        QTest::newRow("control character") << QStringLiteral("李\u0001娜");
        QTest::newRow("control character beside others") << QStringLiteral("\u001f\"\\");
        QTest::newRow("null character") << QString(QChar(0));
        QTest::newRow("delete") << QStringLiteral("\u007f");
        QTest::newRow("slash") << QStringLiteral("a/b");
        QTest::newRow("line separator") << QString(QChar(0x2028));
        QTest::newRow("surrogate pair") << QStringLiteral("😀李娜");
        QTest::newRow("lone surrogate") << QString(QChar(0xd800)) + QStringLiteral("李娜");
    }

    void textsAreEscapedAsQtDoes()
    {
        QFETCH(const QString, text);

        Outcome outcome;
        outcome.intent = QLatin1String(AddBuddy);
        outcome.addSlot(AccountSlot, text, text);
        QCOMPARE(commandJson(outcome), expectedCommand(outcome));

        const QJsonObject speech{{QStringLiteral("type"), QStringLiteral("TTS")},
                                 {QStringLiteral("content"), text}};
        QCOMPARE(answerJson(text),
                 compact({{QStringLiteral("semantic"), QJsonArray()},
                          {QStringLiteral("shouldEndSession"), false},
                          {QStringLiteral("answer"), QJsonObject{{QStringLiteral("text"), text}}},
                          {QStringLiteral("voice_answer"), QJsonArray{speech}}}));
    }

    void slotsStandInTheirOrder()
    {
        Outcome outcome;
        outcome.intent = QLatin1String(InviteConference);
        for (const QString &name : {QStringLiteral("王磊"), QStringLiteral("李娜"), QStringLiteral("张伟")}) {
            outcome.addSlot(NameSlot, name + QStringLiteral("同学"), name);
        }
        QCOMPARE(commandJson(outcome), expectedCommand(outcome));
    }

    void noSlotsAreAnEmptyArray()
    {
        Outcome outcome;
        outcome.intent = QLatin1String(CloseConference);
        QCOMPARE(commandJson(outcome), expectedCommand(outcome));
    }
};

QTEST_APPLESS_MAIN(TestSemanticWriter)
#include "tst_semanticwriter.moc"
