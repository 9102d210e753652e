// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Small programs for ThreadSanitizer, one per argument: it must report those with a race, and pass their
// correct twins, which synchronise through Qt alone.

#include <QCoreApplication>
#include <QMutex>
#include <QReadWriteLock>
#include <QThread>

#include <cstdio>
#include <cstring>
#include <thread>

namespace {

constexpr int Rounds = 2000;
int shared = 0;

void inTwoThreads(void (*work)())
{
    std::thread other(work);
    work();
    other.join();
}

void unguarded()
{
    inTwoThreads([] {
        for (int round = 0; round < Rounds; ++round) {
            ++shared;
        }
    });
}

void ownMutexes()
{
    inTwoThreads([] {
        QMutex mutex;
        for (int round = 0; round < Rounds; ++round) {
            const QMutexLocker locker(&mutex);
            ++shared;
        }
    });
}

template <typename Lock, typename Locker>
void underOne()
{
    inTwoThreads([] {
        static Lock lock;
        for (int round = 0; round < Rounds; ++round) {
            const Locker locker(&lock);
            ++shared;
        }
    });
}

/// Posts an increment to a thread with an event loop, after or before incrementing here.
void post(bool writesTooLate)
{
    for (int round = 0; round < 20; ++round) {
        QThread thread;
        QObject receiver;
        receiver.moveToThread(&thread);
        thread.start();
        if (!writesTooLate) {
            ++shared;
        }
        QMetaObject::invokeMethod(
            &receiver,
            [&thread] {
                ++shared;
                thread.quit();
            },
            Qt::QueuedConnection);
        if (writesTooLate) {
            ++shared;
        }
        thread.wait();
    }
}

void posted()
{
    post(false);
}

void postedTooEarly()
{
    post(true);
}

class Counter : public QThread
{
protected:
    void run() override { ++shared; }
};

/// Increments beside a counting thread or, if @p waits, only after its end.
void countAfter(bool waits)
{
    for (int round = 0; round < 20; ++round) {
        Counter counter;
        counter.start();
        if (!waits) {
            ++shared;
        }
        counter.wait();
        ++shared;
    }
}

void waitedFor()
{
    countAfter(true);
}

void notWaitedFor()
{
    countAfter(false);
}

struct Program
{
    const char *name;
    void (*run)();
};

constexpr Program Programs[] = {{"unguarded", unguarded},
                                {"own-mutexes", ownMutexes},
                                {"posted-too-early", postedTooEarly},
                                {"not-waited-for", notWaitedFor},
                                {"one-mutex", underOne<QMutex, QMutexLocker>},
                                {"write-lock", underOne<QReadWriteLock, QWriteLocker>},
                                {"posted", posted},
                                {"waited-for", waitedFor}};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    for (const Program &program : Programs) {
        if (argc == 2 && std::strcmp(argv[1], program.name) == 0) {
            program.run();
            std::printf("%s ended with %d\n", program.name, shared);
            return 0;
        }
    }
    return 2;
}
