// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "runbenchmarks.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <vector>

namespace {

const char EmptyWindowOption[] = "--empty-window";
constexpr int Starts = 21;
constexpr int LongestStartMsecs = 30000;

/// The floor: what every Qt program with a window of this size pays.
int showEmptyWindow(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QLineEdit);
    window.resize(1100, 900);
    window.show();
    return QApplication::exec();
}

/// A headless X server that ends with this object.
class Server
{
public:
    Server()
    {
        m_process.start(QStringLiteral("Xvfb"),
                        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                         QStringLiteral("0"), QStringLiteral("1600x1200x24"), QStringLiteral("-nolisten"),
                         QStringLiteral("tcp")});
        if (m_process.waitForStarted() && m_process.waitForReadyRead()) {
            m_display = QLatin1Char(':') + QString::fromLatin1(m_process.readLine().trimmed());
        }
    }
    ~Server()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    QString display() const { return m_display; }

private:
    Q_DISABLE_COPY(Server)

    QProcess m_process;
    QString m_display;
};

qint64 now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1000000000LL + time.tv_nsec;
}

/// Nanoseconds from the start of @p program to its first frame; negative if there was none.
qint64 measure(const QString &display, const QString &folder, const QString &program,
               const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(FIRST_FRAME_FILE));
    environment.insert(QStringLiteral("DISPLAY"), display);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder);
    process.setProcessEnvironment(environment);
    const qint64 begin = now();
    process.start(program, arguments);
    process.waitForFinished(LongestStartMsecs);
    bool isNumber = false;
    const qint64 end = process.readAllStandardOutput().trimmed().toLongLong(&isNumber);
    if (!isNumber) {
        std::fputs(process.readAllStandardError().constData(), stderr);
    }
    return isNumber ? end - begin : -1;
}

double medianMsecs(std::vector<qint64> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return static_cast<double>(*middle) / 1e6;
}

/// Alternates between the host and an empty window, and reports medians.
void fromExecToTheFirstFrame(benchmark::State &state)
{
    const Server server;
    const QTemporaryDir folder;
    if (server.display().isEmpty() || !folder.isValid()) {
        state.SkipWithError("Xvfb did not start");
        return;
    }
    std::vector<qint64> hosts;
    std::vector<qint64> floors;
    for (auto _ : state) {
        hosts.push_back(measure(server.display(), folder.path(), QStringLiteral(DEVHOST_FILE),
                                {QStringLiteral("--plugin"), QStringLiteral(CONTACT_PLUGIN_FILE)}));
        floors.push_back(measure(server.display(), folder.path(), QCoreApplication::applicationFilePath(),
                                 {QLatin1String(EmptyWindowOption)}));
        if (hosts.back() < 0 || floors.back() < 0) {
            state.SkipWithError("a window did not come");
            return;
        }
        state.SetIterationTime(static_cast<double>(hosts.back()) / 1e9);
    }
    state.counters["host_ms"] = medianMsecs(hosts);
    state.counters["floor_ms"] = medianMsecs(floors);
}
BENCHMARK(fromExecToTheFirstFrame)->UseManualTime()->Iterations(Starts)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], EmptyWindowOption) == 0) {
        return showEmptyWindow(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    return runBenchmarks(argc, argv);
}
