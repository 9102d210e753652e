// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sentencefile.h"
#include "testcolumns.h"

#include <understanding/understand.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/// Every labelled sentence, and the rate on those held out while the rules were written.
class TestSentences : public QObject
{
    Q_OBJECT

private:
    static QString file(const QString &name)
    {
        return QStringLiteral(CONTACT_SOURCE_DIR "/tests/understanding/") + name;
    }

    static void addRows(const QStringList &names)
    {
        addColumns<QString, QDateTime, QStringList, QString>({"sentence", "now", "contacts", "meaning"});
        for (const QString &name : names) {
            const std::vector<LabelledSentence> rows = readSentences(file(name));
            for (const LabelledSentence &row : rows) {
                QTest::addRow("%s:%d %s", qPrintable(name), row.line, row.sentence.toUtf8().constData())
                    << row.sentence << row.now << row.contacts << row.meaning;
            }
        }
    }

private Q_SLOTS:
    void everySentenceMeansWhatItsRowSays_data()
    {
        addRows({QStringLiteral("sentences.tsv"), QStringLiteral("sentences-more.tsv")});
    }
    void everySentenceMeansWhatItsRowSays()
    {
        QFETCH(QString, sentence);
        QFETCH(QDateTime, now);
        QFETCH(QStringList, contacts);
        QFETCH(QString, meaning);
        QCOMPARE(meaningOf(understanding::understand(sentence, now, contacts)), meaning);
    }

    void sentencesKeptApartAreUnderstood_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("written before the rules") << QStringLiteral("sentences-heldout.tsv");
        QTest::newRow("written last") << QStringLiteral("sentences-heldout-2.tsv");
    }
    void sentencesKeptApartAreUnderstood()
    {
        QFETCH(QString, name);
        constexpr int wantedPercent = 95;
        int right = 0;
        const std::vector<LabelledSentence> rows = readSentences(file(name));
        for (const LabelledSentence &row : rows) {
            const QString meaning = meaningOf(understanding::understand(row.sentence, row.now, row.contacts));
            if (meaning == row.meaning) {
                ++right;
            }
        }
        const int all = static_cast<int>(rows.size());
        qInfo("%d of %d sentences (%.1f percent) are fully right.", right, all, 100.0 * right / all);
        QVERIFY(all > 100);
        QVERIFY2(right * 100 >= all * wantedPercent, qPrintable(QString::number(right)));
    }

    void slotsCarryWhatWasTypedAndWhatIsMeant()
    {
        const QString json = understanding::understand(QStringLiteral("明天下午３点和张伟开会"),
                                                       QDateTime(QDate(2026, 3, 7), QTime(10, 20)), {});
        const QJsonObject semantic = QJsonDocument::fromJson(json.toUtf8())
                                         .object()
                                         .value(QStringLiteral("intent"))
                                         .toObject()
                                         .value(QStringLiteral("semantic"))
                                         .toArray()
                                         .at(0)
                                         .toObject();
        const QJsonObject time{
            {QStringLiteral("name"), QStringLiteral("datetime")},
            {QStringLiteral("value"), QStringLiteral("明天下午３点")},
            {QStringLiteral("normValue"), QStringLiteral("{\"suggestDatetime\":\"2026-03-08T15:00:00\"}")}};
        QVERIFY(semantic.value(QStringLiteral("slots")).toArray().contains(time));
    }

    void answersAreShownSpokenAndHoldNoIntent()
    {
        const QString json =
            understanding::understand(QStringLiteral("加入会议"), QDateTime::currentDateTime(), {});
        const QString text = QStringLiteral("请问会议号是多少？");
        const QJsonObject expected{
            {QStringLiteral("intent"),
             QJsonObject{{QStringLiteral("semantic"), QJsonArray()},
                         {QStringLiteral("shouldEndSession"), false},
                         {QStringLiteral("answer"), QJsonObject{{QStringLiteral("text"), text}}},
                         {QStringLiteral("voice_answer"),
                          QJsonArray{QJsonObject{{QStringLiteral("type"), QStringLiteral("TTS")},
                                                 {QStringLiteral("content"), text}}}}}}};
        QCOMPARE(QJsonDocument::fromJson(json.toUtf8()).object(), expected);
        QVERIFY(!json.contains(QLatin1Char('\n')));
    }
};

QTEST_APPLESS_MAIN(TestSentences)
#include "tst_sentences.moc"
