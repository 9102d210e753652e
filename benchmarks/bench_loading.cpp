// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "runbenchmarks.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QByteArrayList>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLibrary>
#include <QPluginLoader>
#include <QProcess>

#include <sys/resource.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <random>
#include <vector>

namespace {

const char LoadOption[] = "--load";
/// Loads as on a desktop where other plugins have already loaded the platform's libraries.
const char LoadOnDesktopOption[] = "--load-on-desktop";

bool isLoadOption(const char *argument)
{
    return std::strcmp(argument, LoadOption) == 0 || std::strcmp(argument, LoadOnDesktopOption) == 0;
}

/// Not inlined: benchmarks/instructions counts what it takes.
[[gnu::noinline]] bool loadPlugin(QPluginLoader &loader, const QString &file)
{
    loader.setFileName(file);
    return loader.instance() != nullptr;
}

/// The minor page faults so far: pages that the kernel mapped without reading the disk.
long pageFaults()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}

/// Loads and instantiates the plugin, and prints nanoseconds and page faults. Runs in a separate process,
/// because a library is only loaded once.
int loadOnce(int argc, char **argv)
{
    const QApplication application(argc, argv);
    if (std::strcmp(argv[1], LoadOnDesktopOption) == 0) {
        for (const char *library : {TOOLKIT_FILE, ABILITY_FILE}) {
            if (!QLibrary(QString::fromLocal8Bit(library)).load()) {
                return 1;
            }
        }
    }
    const QString file = QString::fromLocal8Bit(argv[2]);
    const long faultsBefore = pageFaults();
    QElapsedTimer timer;
    timer.start();
    QPluginLoader loader;
    const bool loaded = loadPlugin(loader, file);
    const qint64 elapsed = timer.nsecsElapsed();
    if (!loaded) {
        std::fprintf(stderr, "%s\n", qPrintable(loader.errorString()));
        return 1;
    }
    std::printf("%lld %ld\n", static_cast<long long>(elapsed), pageFaults() - faultsBefore);
    return 0;
}

struct Loading
{
    qint64 nanoseconds = -1; ///< negative if it failed
    qint64 pageFaults = -1;
};

Loading measure(const char *option, const char *file)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QLatin1String(option), QString::fromLocal8Bit(file)});
    if (!process.waitForFinished() || process.exitCode() != 0) {
        return {};
    }
    const QByteArrayList printed = process.readAllStandardOutput().trimmed().split(' ');
    bool isTime = false;
    bool isCount = false;
    const Loading loading{printed.first().toLongLong(&isTime), printed.last().toLongLong(&isCount)};
    return isTime && isCount && printed.size() == 2 ? loading : Loading();
}

double median(const std::vector<Loading> &loadings, qint64 Loading::*figure)
{
    std::vector<qint64> values;
    values.reserve(loadings.size());
    for (const Loading &loading : loadings) {
        values.push_back(loading.*figure);
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return static_cast<double>(*middle);
}

/// Loads both plugins in random order, in a host that already runs Qt Widgets. Reports medians: a single
/// start can take 8 ms for reasons that are not the plugin's.
void loading(benchmark::State &state, const char *option)
{
    std::mt19937 random(20260307);
    std::vector<Loading> plugin;
    std::vector<Loading> empty;
    for (auto _ : state) {
        const bool pluginFirst = (random() & 1U) == 0;
        const Loading first = measure(option, pluginFirst ? CONTACT_PLUGIN_FILE : EMPTY_PLUGIN_FILE);
        const Loading second = measure(option, pluginFirst ? EMPTY_PLUGIN_FILE : CONTACT_PLUGIN_FILE);
        if (first.nanoseconds < 0 || second.nanoseconds < 0) {
            state.SkipWithError("a plugin could not be loaded");
            return;
        }
        plugin.push_back(pluginFirst ? first : second);
        empty.push_back(pluginFirst ? second : first);
        state.SetIterationTime(static_cast<double>(plugin.back().nanoseconds) / 1e9);
    }
    const double pluginTime = median(plugin, &Loading::nanoseconds);
    const double emptyTime = median(empty, &Loading::nanoseconds);
    state.counters["plugin_us"] = pluginTime / 1000;
    state.counters["floor_us"] = emptyTime / 1000;
    state.counters["ratio"] = pluginTime / emptyTime;
    state.counters["plugin_faults"] = median(plugin, &Loading::pageFaults);
    state.counters["floor_faults"] = median(empty, &Loading::pageFaults);
}
BENCHMARK_CAPTURE(loading, thePlatformsLibrariesAreLoadedAlready, LoadOnDesktopOption)
    ->UseManualTime()
    ->Iterations(101)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loading, thePlatformsLibrariesComeWithIt, LoadOption)
    ->UseManualTime()
    ->Iterations(101)
    ->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && isLoadOption(argv[1])) {
        return loadOnce(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    return runBenchmarks(argc, argv);
}
