// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "threadtime.h"

#include <benchmark/benchmark.h>

#include <chrono>

/// The time on the clock in milliseconds, for what waits for others.
inline double wallMsecs()
{
    using Milliseconds = std::chrono::duration<double, std::milli>;
    return Milliseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Runs @p task and @p floor, the least that does such a thing at all, by turns, so that other load on the
/// machine affects both. Reports both in microseconds of @p clock, and the ratio; stops when @p task returns
/// false. For benchmarks with UseManualTime().
template <typename Task, typename Floor>
void measureBesideAFloor(benchmark::State &state, Task task, Floor floor, double (*clock)() = threadMsecs)
{
    double tasks = 0;
    double floors = 0;
    for ([[maybe_unused]] auto iteration : state) {
        const double begin = clock();
        const bool isDone = task();
        const double middle = clock();
        if (!isDone) {
            state.SkipWithError("not done as expected");
            return;
        }
        floor();
        floors += clock() - middle;
        tasks += middle - begin;
        state.SetIterationTime((middle - begin) / 1e3);
    }
    const double count = static_cast<double>(state.iterations());
    state.counters["task_us"] = tasks * 1e3 / count;
    state.counters["floor_us"] = floors * 1e3 / count;
    state.counters["ratio"] = tasks / floors;
}
