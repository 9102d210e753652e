// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLibrary>
#include <QPluginLoader>
#include <QProcess>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <random>
#include <vector>

namespace {

const char LoadOption[] = "--load";
/// Of a desktop where other programs' parts have loaded the platform's libraries already.
const char LoadOnDesktopOption[] = "--load-on-desktop";

bool isLoadOption(const char *argument)
{
    return std::strcmp(argument, LoadOption) == 0 || std::strcmp(argument, LoadOnDesktopOption) == 0;
}

/// In a process of its own, because a library is only loaded once: loads and instantiates, and prints
/// nanoseconds.
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
    QElapsedTimer timer;
    timer.start();
    QPluginLoader loader(QString::fromLocal8Bit(argv[2]));
    const bool loaded = loader.instance() != nullptr;
    const qint64 elapsed = timer.nsecsElapsed();
    if (!loaded) {
        std::fprintf(stderr, "%s\n", qPrintable(loader.errorString()));
        return 1;
    }
    std::printf("%lld\n", static_cast<long long>(elapsed));
    return 0;
}

/// Nanoseconds of one loading; negative when it failed.
qint64 measure(const char *option, const char *file)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QLatin1String(option), QString::fromLocal8Bit(file)});
    process.waitForFinished();
    bool isNumber = false;
    const qint64 elapsed = process.readAllStandardOutput().trimmed().toLongLong(&isNumber);
    return isNumber && process.exitCode() == 0 ? elapsed : -1;
}

double median(std::vector<qint64> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return static_cast<double>(*middle);
}

/// Both, in a random order, in a host that has Qt Widgets running already. Reports medians: a single start
/// can take 8 ms for reasons that are not the plugin's.
void loading(benchmark::State &state, const char *option)
{
    std::mt19937 random(20260307);
    std::vector<qint64> plugin;
    std::vector<qint64> empty;
    for (auto _ : state) {
        const bool pluginFirst = (random() & 1U) == 0;
        const qint64 first = measure(option, pluginFirst ? CONTACT_PLUGIN_FILE : EMPTY_PLUGIN_FILE);
        const qint64 second = measure(option, pluginFirst ? EMPTY_PLUGIN_FILE : CONTACT_PLUGIN_FILE);
        if (first < 0 || second < 0) {
            state.SkipWithError("a plugin could not be loaded");
            return;
        }
        plugin.push_back(pluginFirst ? first : second);
        empty.push_back(pluginFirst ? second : first);
        state.SetIterationTime(static_cast<double>(plugin.back()) / 1e9);
    }
    state.counters["plugin_us"] = median(plugin) / 1000;
    state.counters["floor_us"] = median(empty) / 1000;
    state.counters["ratio"] = median(plugin) / median(empty);
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
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
