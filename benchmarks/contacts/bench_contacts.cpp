// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "book/contactsbook.h"

#include "core/statement.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QTemporaryDir>

#include <map>
#include <memory>

namespace {

constexpr qint64 HourMsecs = 60 * 60 * 1000;
constexpr qint64 DayMsecs = 24 * HourMsecs;

/// A database with @p count conferences: ten a day of the user's own as far as they reach, the same tomorrow
/// whatever the count.
class FullBook
{
public:
    explicit FullBook(qint64 count)
        : m_now(QDateTime(QDate(2026, 3, 7), QTime(10, 20)).toMSecsSinceEpoch())
        , book(m_folder.filePath(QStringLiteral("contacts.db")), [this] { return m_now; })
    {
        book.change([this, count] {
            book.conferences().removeAll();
            fill(count);
            return true;
        });
        Statement(book.database().handle(), QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")).run();
    }

    static QString tomorrow()
    {
        const qint64 midnight = QDateTime(QDate(2026, 3, 8), QTime(0, 0)).toMSecsSinceEpoch();
        return QStringLiteral("{\"startTime\":%1,\"endTime\":%2}").arg(midnight).arg(midnight + DayMsecs);
    }

private:
    /// Ten conferences a day from tomorrow on, each with two people.
    void fill(qint64 count)
    {
        const qint64 first = QDateTime(QDate(2026, 3, 8), QTime(8, 0)).toMSecsSinceEpoch();
        Statement(book.database().handle(),
                  QStringLiteral(
                      "WITH RECURSIVE n(i) AS (VALUES (0) UNION ALL SELECT i + 1 FROM n WHERE i + 1 < ?)"
                      " INSERT INTO conference (id, conf_id, dial_number, title, host_id, start_msecs,"
                      " duration_msecs, participant_limit) SELECT i + 1, 'c' || i, 100000000 + i, '周会',"
                      " 'u100001', ? + i / 10 * 86400000 + i % 10 * 3600000, 1800000, 20 FROM n"))
            .bind(count)
            .bind(first)
            .run();
        Statement(
            book.database().handle(),
            QStringLiteral("INSERT INTO participant (conference_id, user_id, place, attendance, start_msecs)"
                           " SELECT conference.id, user_id, 0, 0, start_msecs FROM conference, person"
                           " WHERE user_id IN ('u100001', 'u100003')"))
            .run();
    }

    QTemporaryDir m_folder;
    qint64 m_now;

public:
    ContactsBook book;
};

/// Makes each book once: the library calls a benchmark several times to find out how often to repeat it.
/// Lives in main(), since a database in static storage would outlive the statics of QtSql and crash at exit.
class Library
{
public:
    Library() { s_instance = this; }
    ~Library() { s_instance = nullptr; }
    Q_DISABLE_COPY(Library)

    static FullBook &book(qint64 count)
    {
        std::unique_ptr<FullBook> &book = s_instance->m_books[count];
        if (!book) {
            book = std::make_unique<FullBook>(count);
        }
        return *book;
    }

private:
    static Library *s_instance;
    std::map<qint64, std::unique_ptr<FullBook>> m_books;
};
Library *Library::s_instance = nullptr;

/// One day's search among as many conferences as the argument says.
void searchDay(benchmark::State &state)
{
    FullBook &full = Library::book(state.range(0));
    const QString parameters = FullBook::tomorrow();
    for (auto _ : state) {
        const QString answer = full.book.perform(QStringLiteral("Search Conference"), parameters);
        if (answer.count(QStringLiteral("confId")) != 10) {
            state.SkipWithError("the day has not ten conferences");
        }
        benchmark::DoNotOptimize(answer);
    }
}
BENCHMARK(searchDay)->Arg(1000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

/// An action that writes, to the point where it is on disk.
void createScheduled(benchmark::State &state)
{
    FullBook &full = Library::book(1000);
    full.book.session().setCreationsPerMinute(1 << 30);
    static qint64 start = QDateTime(QDate(2126, 1, 1), QTime(0, 0)).toMSecsSinceEpoch();
    for (auto _ : state) {
        const QString answer = full.book.perform(
            QStringLiteral("Create Conference"),
            QStringLiteral("{\"members\":[{\"name\":\"赵磊\"}],\"startTime\":%1}").arg(start));
        if (!answer.contains(QStringLiteral("\"OK\""))) {
            state.SkipWithError("not created");
        }
        start += HourMsecs;
    }
}
BENCHMARK(createScheduled)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Library library;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
