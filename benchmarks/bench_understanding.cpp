// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "besideafloor.h"
#include "runbenchmarks.h"

#include <understanding/dialogue.h>
#include <understanding/understand.h>

#include <benchmark/benchmark.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace {

constexpr int LongestSentence = 500; // what is longer is refused unread

QDateTime moment()
{
    return {QDate(2026, 3, 7), QTime(10, 20)};
}

/// A sentence of @p length characters: people, times and a topic, over and over.
QString sentence(qint64 length)
{
    const QString begin = QStringLiteral("明天下午三点和张伟、李娜开会讨论");
    const QString more = QStringLiteral("第三季度的预算和下周一的发布计划，");
    QString text = begin;
    while (text.size() < length) {
        text += more;
    }
    return text.left(static_cast<int>(length));
}

/// The single sentences of the labelled rows that come with the tests.
QStringList labelledSentences()
{
    QStringList sentences;
    const QDir folder(QStringLiteral(LABELLED_ROWS));
    const QStringList names = folder.entryList({QStringLiteral("*-own*.jsonl")});
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            qFatal("Cannot read %s", qPrintable(file.fileName()));
        }
        while (!file.atEnd()) {
            const QJsonObject row = QJsonDocument::fromJson(file.readLine()).object();
            if (row.value(QLatin1String("kind")) == QLatin1String("sentence")) {
                sentences.append(row.value(QLatin1String("text")).toString());
            }
        }
    }
    return sentences;
}

/// Reads what people say, one sentence after the other, each standalone. Target: 60,000 per second.
void sentencesPeopleSay(benchmark::State &state)
{
    const QStringList sentences = labelledSentences();
    if (sentences.isEmpty()) {
        state.SkipWithError("no labelled sentences");
        return;
    }
    const QDateTime now = moment();
    for (auto _ : state) {
        for (const QString &text : sentences) {
            benchmark::DoNotOptimize(understanding::understand(text, now));
        }
    }
    state.counters["sentences"] = sentences.size();
    state.counters["per_second"] = benchmark::Counter(static_cast<double>(sentences.size()),
                                                      benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(sentencesPeopleSay)->Unit(benchmark::kMillisecond);

/// Reads a standalone sentence of range(0) characters. The floor: one that is refused unread.
void sentenceOfLength(benchmark::State &state)
{
    const QString text = sentence(state.range(0));
    const QDateTime now = moment();
    const QString unread = sentence(LongestSentence + 1);
    const auto read = [&] {
        benchmark::DoNotOptimize(understanding::understand(text, now));
        return true;
    };
    const auto refuse = [&] {
        benchmark::DoNotOptimize(understanding::understand(unread, now));
        return true;
    };
    constexpr int runs = 100;
    measureBesideAFloor(state, read, refuse, threadMsecs, runs);
}
BENCHMARK(sentenceOfLength)
    ->UseManualTime()
    ->Arg(10)
    ->Arg(20)
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Arg(LongestSentence)
    ->Arg(100000)
    ->Unit(benchmark::kMicrosecond);

/// Reads the same sentences in one conversation: what is asked about is followed by a sentence that is also
/// read as the answer.
void turnOfLength(benchmark::State &state)
{
    understanding::Dialogue dialogue;
    const QString text = sentence(state.range(0));
    const QDateTime now = moment();
    for (auto _ : state) {
        benchmark::DoNotOptimize(dialogue.turn(text, now));
    }
}
BENCHMARK(turnOfLength)
    ->Arg(10)
    ->Arg(20)
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Arg(500)
    ->Unit(benchmark::kMicrosecond);

/// Reads a sentence of twenty characters with range(0) known names.
void sentenceWithKnownNames(benchmark::State &state)
{
    QStringList names;
    const QString surnames = QStringLiteral("张王李赵刘陈杨黄周吴");
    for (int i = 0; i < state.range(0); ++i) {
        names.append(QString(surnames.at(i % surnames.size())) + QChar(0x4e00 + i / 100) +
                     QChar(0x5200 + i % 100));
    }
    understanding::Dialogue dialogue(names);
    const QString text = sentence(20);
    const QDateTime now = moment();
    for (auto _ : state) {
        benchmark::DoNotOptimize(dialogue.turn(text, now));
    }
}
BENCHMARK(sentenceWithKnownNames)->Arg(0)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks(argc, argv);
}
