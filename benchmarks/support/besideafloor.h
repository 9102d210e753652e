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

/// Calls @p action up to @p runs times; returns false as soon as it does.
template <typename Action>
bool repeat(Action action, int runs)
{
    for (int i = 0; i < runs; ++i) {
        if (!action()) {
            return false;
        }
    }
    return true;
}

/// Alternates between @p task and @p floor, the least work that anything of the kind has to do, so that other
/// load on the machine affects both. Reports both in microseconds of @p clock, and the ratio; fails as soon
/// as one of them returns false. Each is called @p runs times between two looks at the clock, because a look
/// at the thread's clock is a system call, which counts beside a short task. For benchmarks with
/// UseManualTime().
template <typename Task, typename Floor>
void measureBesideAFloor(benchmark::State &state, Task task, Floor floor, double (*clock)() = threadMsecs,
                         int runs = 1)
{
    double tasks = 0;
    double floors = 0;
    while (state.KeepRunningBatch(runs)) {
        const double begin = clock();
        const bool isDone = repeat(task, runs);
        const double middle = clock();
        const bool isFloorDone = repeat(floor, runs);
        const double end = clock();
        if (!isDone || !isFloorDone) {
            state.SkipWithError(isDone ? "the floor is not done as expected" : "not done as expected");
            return;
        }
        tasks += middle - begin;
        floors += end - middle;
        state.SetIterationTime((middle - begin) / 1e3);
    }
    const double count = static_cast<double>(state.iterations());
    state.counters["task_us"] = tasks * 1e3 / count;
    state.counters["floor_us"] = floors * 1e3 / count;
    state.counters["ratio"] = tasks / floors;
}
