// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <benchmark/benchmark.h>

#include <vector>

/// Leaves the printing to Google Benchmark's own reporter, and notes whether a run failed.
class FailureNotingReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override { return m_display->ReportContext(context); }
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            m_hasFailed = m_hasFailed || run.error_occurred;
        }
        m_display->ReportRuns(runs);
    }
    void Finalize() override { m_display->Finalize(); }

    bool hasFailed() const { return m_hasFailed; }

private:
    /// Google Benchmark's. Create it after benchmark::Initialize(), which reads --benchmark_format.
    benchmark::BenchmarkReporter *m_display = benchmark::CreateDefaultDisplayReporter();
    bool m_hasFailed = false;
};

/// Runs the benchmarks that the command line asks for, and returns the program's exit status. Call from
/// main() when the application object exists.
inline int runBenchmarks(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    FailureNotingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    // Google Benchmark itself only prints that a run was skipped with an error.
    return reporter.hasFailed() ? 1 : 0;
}
