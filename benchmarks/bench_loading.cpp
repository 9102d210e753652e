// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLibrary>
#include <QPluginLoader>
#include <QProcess>

#include <cstdio>
#include <cstring>

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

/// Both, turn about, in a host that has Qt Widgets running already.
void loadingAgainstAnEmptyPlugin(benchmark::State &state, const char *option)
{
    double plugin = 0;
    double empty = 0;
    for (auto _ : state) {
        const qint64 ours = measure(option, CONTACT_PLUGIN_FILE);
        const qint64 theirs = measure(option, EMPTY_PLUGIN_FILE);
        if (ours < 0 || theirs < 0) {
            state.SkipWithError("a plugin could not be loaded");
            return;
        }
        plugin += static_cast<double>(ours);
        empty += static_cast<double>(theirs);
        state.SetIterationTime(static_cast<double>(ours) / 1e9);
    }
    const double count = static_cast<double>(state.iterations());
    state.counters["plugin_us"] = plugin / count / 1000;
    state.counters["empty_us"] = empty / count / 1000;
    state.counters["ratio"] = plugin / empty;
}
BENCHMARK_CAPTURE(loadingAgainstAnEmptyPlugin, withThePlatformsLibraries, LoadOption)
    ->UseManualTime()
    ->Iterations(40)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loadingAgainstAnEmptyPlugin, alone, LoadOnDesktopOption)
    ->UseManualTime()
    ->Iterations(40)
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
