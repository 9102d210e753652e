// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "besideafloor.h"
#include "fullbook.h"
#include "paintcounter.h"
#include "runbenchmarks.h"
#include "threadtime.h"

#include "book/administration.h"
#include "window/contactswindow.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEventLoop>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>

#include <algorithm>
#include <vector>

namespace {

constexpr int LongestWaitMsecs = 10000;
constexpr int Writes = 15;

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/// Lets the window follow a change and paint itself; false if it did not in time.
bool follow(ContactsBook &book, ContactsWindow &window)
{
    const auto *page = window.findChild<QTabWidget *>()->currentWidget();
    const PaintCounter paints(page->findChild<QTableView *>()->viewport());
    QEventLoop loop;
    int paintsBefore = 0;
    QObject::connect(&book, &ContactsBook::changedLately, &loop, [&] {
        paintsBefore = paints.count();
        loop.quit();
    });
    QTimer::singleShot(LongestWaitMsecs, &loop, [&loop] { loop.exit(1); });
    const bool isTold = loop.exec() == 0;
    QCoreApplication::processEvents(); // lays out and paints what has changed
    return isTold && paints.count() > paintsBefore;
}

/// Schedules a conference while the window is open with range(0) conferences and as many contacts, on page
/// range(1). Reports the time before the answer, what the window takes after it, and as its floor what
/// painting the unchanged window takes.
void writeWithTheWindowOpen(benchmark::State &state)
{
    FullBook full(state.range(0), state.range(0));
    Administration administration(full.book);
    ContactsWindow window(full.book, administration);
    window.findChild<QTabWidget *>()->setCurrentIndex(static_cast<int>(state.range(1)));
    window.show();
    window.grab();
    std::vector<double> answers;
    std::vector<double> shown;
    std::vector<double> floors;
    for (auto _ : state) {
        const double before = threadMsecs();
        const bool isDone = full.schedule();
        const double answered = threadMsecs();
        if (!isDone || !follow(full.book, window)) {
            state.SkipWithError("not created, or not shown");
            return;
        }
        answers.push_back(answered - before);
        shown.push_back(threadMsecs() - answered);
        state.SetIterationTime((answers.back() + shown.back()) / 1e3);
        const double painting = threadMsecs();
        window.grab();
        floors.push_back(threadMsecs() - painting);
    }
    state.counters["before_answer_ms"] = median(answers);
    state.counters["in_window_ms"] = median(shown);
    state.counters["floor_ms"] = median(floors);
}
BENCHMARK(writeWithTheWindowOpen)
    ->ArgsProduct({{100, 1000, 10000, 100000}, {0, 1}})
    ->ArgNames({"", "page"})
    ->UseManualTime()
    ->Iterations(Writes)
    ->Unit(benchmark::kMillisecond);

/// Opens the window with range(0) conferences and as many contacts. The floor: a window of the same size with
/// two empty tables as pages.
void openTheWindow(benchmark::State &state)
{
    FullBook full(state.range(0), state.range(0));
    Administration administration(full.book);
    QSize size;
    const auto open = [&] {
        ContactsWindow window(full.book, administration);
        size = window.size();
        return !window.grab().isNull();
    };
    const auto openEmpty = [&] {
        QTabWidget window;
        window.addTab(new QTableWidget, QStringLiteral("会议"));
        window.addTab(new QTableWidget, QStringLiteral("联系人"));
        window.resize(size);
        return !window.grab().isNull();
    };
    measureBesideAFloor(state, open, openEmpty);
}
BENCHMARK(openTheWindow)
    ->RangeMultiplier(10)
    ->Range(100, 100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmarks(argc, argv);
}
