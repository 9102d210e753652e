// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "besideafloor.h"
#include "fullbook.h"
#include "runbenchmarks.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <map>
#include <memory>
#include <utility>

namespace {

/// Makes each book once: Google Benchmark calls a benchmark several times to find out how often to repeat it.
/// Lives in main(), since a database in static storage would outlive the statics of QtSql and crash at exit.
class Library
{
public:
    Library() { current = this; }
    ~Library() { current = nullptr; }
    Q_DISABLE_COPY(Library)

    static FullBook &book(qint64 conferences, qint64 contacts)
    {
        std::unique_ptr<FullBook> &book = current->m_books[{conferences, contacts}];
        if (!book) {
            book = std::make_unique<FullBook>(conferences, contacts);
        }
        return *book;
    }

private:
    static Library *current;
    std::map<std::pair<qint64, qint64>, std::unique_ptr<FullBook>> m_books;
};
Library *Library::current = nullptr;

/// The floor of reading: one row by its key.
bool readOneRow(FullBook &full)
{
    Statement row(full.book.database().handle(), QStringLiteral("SELECT name FROM person WHERE user_id = ?"));
    return row.bind(FullBook::user()).run().next() && !row.text(0).isEmpty();
}

/// The floor of writing: one changed row of a person whom no benchmark invites, until it is on disk.
bool writeOneRow(FullBook &full)
{
    Statement update(full.book.database().handle(),
                     QStringLiteral("UPDATE person SET kind = 1 - kind WHERE user_id = ?"));
    return update.bind(FullBook::uninvolved()).run().affectedRows() == 1;
}

/// Reports what measureBesideAFloor() measures.
void inMicroseconds(benchmark::internal::Benchmark *measured)
{
    measured->UseManualTime()->Unit(benchmark::kMicrosecond);
}

/// Repeats a benchmark for a thousand to a million conferences or contacts.
void perBookSize(benchmark::internal::Benchmark *measured)
{
    inMicroseconds(measured);
    measured->RangeMultiplier(10)->Range(1000, 1000000);
}

/// Searches one day, with ten conferences, among range(0) conferences.
void searchDay(benchmark::State &state)
{
    FullBook &full = Library::book(state.range(0), 0);
    const QString parameters = FullBook::tomorrow();
    const auto search = [&] {
        const QString answer = full.book.perform(QStringLiteral("Search Conference"), parameters);
        return answer.count(QStringLiteral("confId")) == 10;
    };
    measureBesideAFloor(state, search, [&] { return readOneRow(full); });
}
BENCHMARK(searchDay)->Apply(perBookSize);

/// Finds whom a spoken name means among range(0) contacts.
void spokenName(benchmark::State &state)
{
    FullBook &full = Library::book(0, state.range(0));
    const QString name = FullBook::contactName(state.range(0) / 2);
    const auto find = [&] {
        return full.book.people().contactsByName(FullBook::user(), name).size() == 1;
    };
    measureBesideAFloor(state, find, [&] { return readOneRow(full); });
}
BENCHMARK(spokenName)->Apply(perBookSize);

/// Measures a write, up to the point where it is on disk, on the clock.
void createScheduled(benchmark::State &state)
{
    FullBook &full = Library::book(1000, 0);
    measureBesideAFloor(
        state, [&] { return full.schedule(); }, [&] { return writeOneRow(full); }, wallMsecs);
}
BENCHMARK(createScheduled)->Apply(inMicroseconds);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Library library;
    return runBenchmarks(argc, argv);
}
