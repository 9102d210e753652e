// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardcosts.h"
#include "conferencemsgstaticwidget.h"
#include "runbenchmarks.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <functional>
#include <limits>
#include <string>

namespace {

constexpr int Attempts = 3;
constexpr double MillisecondsPerSecond = 1e3;

/// The best of several attempts, in milliseconds: disturbances only make them longer.
double bestOf(benchmark::State &state, const std::function<double()> &attempt)
{
    double best = std::numeric_limits<double>::infinity();
    for ([[maybe_unused]] auto iteration : state) {
        const double elapsed = attempt();
        best = std::min(best, elapsed);
        state.SetIterationTime(elapsed / MillisecondsPerSecond);
    }
    return best;
}

/// Builds a card with a text of range(0) characters. The floor: the same card with a short one.
void longText(benchmark::State &state, CardCosts::BuildWithText build)
{
    constexpr int few = 10;
    const QString text = CardCosts::textOfLength(int(state.range(0)));
    const QString shortText = CardCosts::textOfLength(few);
    const auto paint = [&](const QString &shown) {
        return CardCosts::untilPainted([&](ConferenceMsgStaticWidget &card) { build(card, shown); });
    };
    double floor = std::numeric_limits<double>::infinity();
    state.counters["best_ms"] = bestOf(state, [&] {
        floor = std::min(floor, paint(shortText));
        return paint(text);
    });
    state.counters["floor_ms"] = floor;
}

double candidates(int count)
{
    const ContactInviteMemberDetail detail = CardCosts::people(count, QStringLiteral("张三"));
    return CardCosts::untilPainted(
        [&](ConferenceMsgStaticWidget &card) { card.inviteMultiplePerson(detail); });
}

/// A picker of 20,000 people against one of 1,000; quadratic growth would take 400 times as long.
void twentyTimesThePeople(benchmark::State &state)
{
    constexpr int few = 1000;
    constexpr int factor = 20;
    double fewBest = std::numeric_limits<double>::infinity();
    const double manyBest = bestOf(state, [&] {
        fewBest = std::min(fewBest, candidates(few));
        return candidates(factor * few);
    });
    state.counters["few_ms"] = fewBest;
    state.counters["many_ms"] = manyBest;
    state.counters["ratio"] = manyBest / fewBest;
}
BENCHMARK(twentyTimesThePeople)->UseManualTime()->Iterations(Attempts)->Unit(benchmark::kMillisecond);

void registerLongTexts()
{
    constexpr int megabyte = 1024 * 1024;
    for (const int characters : {megabyte, 64 * megabyte}) {
        for (const CardCosts::LongText &text : CardCosts::longTexts()) {
            benchmark::RegisterBenchmark((std::string("longText/") + text.place).c_str(), longText,
                                         text.build)
                ->Arg(characters)
                ->UseManualTime()
                ->Iterations(Attempts)
                ->Unit(benchmark::kMillisecond);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    CardCosts::warmUp();
    registerLongTexts();
    return runBenchmarks(argc, argv);
}
