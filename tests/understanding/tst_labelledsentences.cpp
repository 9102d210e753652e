// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "labelledrows.h"

#include <QtTest>

Q_DECLARE_METATYPE(LabelledRow)

/// Sentences and conversations labelled by people who did not write the rules. A third of each fresh file was
/// held out while the rules were written; only its rate is checked.
class TestLabelledSentences : public QObject
{
    Q_OBJECT

private:
    static QString file(const QString &name)
    {
        return QStringLiteral(CONTACT_SOURCE_DIR "/tests/understanding/") + name;
    }

    static Rates ratesOf(bool keptApart)
    {
        Rates rates;
        const QStringList names =
            QDir(file(QString())).entryList({QStringLiteral("*-fresh-*.jsonl")}, QDir::Files, QDir::Name);
        for (const QString &name : names) {
            const std::vector<LabelledRow> rows = readLabelledRows(file(name));
            for (std::size_t at = 0; at < rows.size(); ++at) {
                if (isKeptApart(at) == keptApart) {
                    rates.add(rows[at]);
                }
            }
        }
        return rates;
    }

private Q_SLOTS:
    void everyShownRowIsRight_data()
    {
        QTest::addColumn<LabelledRow>("row");
        const std::vector<LabelledRow> rows = readLabelledRows(file(QStringLiteral("sentences-shown.jsonl")));
        for (const LabelledRow &row : rows) {
            QTest::addRow("%d %s", row.id, row.title.toUtf8().constData()) << row;
        }
    }
    void everyShownRowIsRight()
    {
        QFETCH(LabelledRow, row);
        const RowResult result = runRow(row);
        QVERIFY2(result.right, result.found.toUtf8().constData());
    }

    void rowsLearnedFromHoldTheirRate()
    {
        const Rates rates = ratesOf(false);
        qInfo("%s", qPrintable(rates.toString()));
        for (const QString &failure : rates.failures) {
            qInfo("%s", failure.toUtf8().constData());
        }
        QCOMPARE(rates.sentences, 2701);
        QCOMPARE(rates.dialogues, 813);
        compare(rates, Learned);
    }

    void rowsKeptApartHoldTheirRate()
    {
        const Rates rates = ratesOf(true);
        qInfo("%s", qPrintable(rates.toString()));
        QCOMPARE(rates.sentences, 1349);
        QCOMPARE(rates.dialogues, 407);
        compare(rates, Apart);
    }

    /// Written for breadth, most of them by the author of the rules.
    void ownRowsHoldTheirRate()
    {
        Rates rates;
        for (const char *name : {"sentences-own.jsonl", "sentences-own-2.jsonl", "sentences-own-3.jsonl",
                                 "dialogues-own.jsonl", "absences-own.jsonl"}) {
            const std::vector<LabelledRow> rows = readLabelledRows(file(QString::fromLatin1(name)));
            for (const LabelledRow &row : rows) {
                rates.add(row);
            }
        }
        qInfo("%s", qPrintable(rates.toString()));
        QCOMPARE(rates.sentences, 7523);
        QCOMPARE(rates.dialogues, 1872);
        compare(rates, Own);
    }

private:
    /// The lower bounds of the rates, except where noted.
    struct Bounds
    {
        int sentences;
        int dialogues;
        int negatives; ///< at most
    };

    static void compare(const Rates &rates, const Bounds &bounds)
    {
        QVERIFY(rates.sentencesRight >= bounds.sentences);
        QVERIFY(rates.dialoguesRight >= bounds.dialogues);
        QVERIFY(rates.negativesActedOn <= bounds.negatives);
    }

    static constexpr Bounds Own = {7293, 1857, 0};
    static constexpr Bounds Learned = {2691, 813, 0};
    static constexpr Bounds Apart = {1308, 394, 2};
};

QTEST_APPLESS_MAIN(TestLabelledSentences)
#include "tst_labelledsentences.moc"
