// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "handlerrun.h"
#include "logcapture.h"

#include <QCoreApplication>
#include <QObject>
#include <QTest>

#include <memory>

/// Derives OtherWorker from @p Handler, with a @p worker that returns HandlerTest::OtherCode.
#define HANDLER_WITH_OTHER_WORKER(Handler, worker)                                                           \
    class OtherWorker : public Handler                                                                       \
    {                                                                                                        \
    public:                                                                                                  \
        using Handler::Handler;                                                                              \
        int worker(const CloudIntent &) override                                                             \
        {                                                                                                    \
            return HandlerTest::OtherCode;                                                                   \
        }                                                                                                    \
    };

/// Defines main() for a test that only needs HandlerTest.
#define HANDLER_TEST_MAIN(subject)                                                                           \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        QCoreApplication application(argc, argv);                                                            \
        HandlerTest test(subject);                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

/**
 * Tests a handler against its tables of outcomes and requests, and the behaviour that all handlers share; a
 * code without an outcome must leave the reply unchanged. To add tests of one handler derive from
 * HandlerTestOf.
 */
class HandlerTest : public QObject
{
    Q_OBJECT

public:
    static constexpr int OtherCode = 77;

    /// The reply expected when the application answers with @ref script.
    struct Outcome
    {
        const char *name;
        Script script;
        Expected expected;
        const char *slotArray = nullptr; ///< null for the usual slots
    };

    /// The parameters expected in the last request for the given slots.
    struct Request
    {
        const char *name;
        const char *slotArray;
        const char *parameters;
    };

    /// The slot without which the handler sends nothing.
    struct RequiredSlot
    {
        const char *others;   ///< slots that do not replace it
        const char *file;     ///< that logs the missing slot
        const char *record;   ///< the logged text
        const char *function; ///< the whole signature
    };

    struct Subject
    {
        IReplyableIntent *(*make)();
        IReplyableIntent *(*makeOtherWorker)();
        const char *action;     ///< of the last request
        const char *usualSlots; ///< enough for a request, as for intentWith()
        QVector<Outcome> outcomes = {};
        QVector<Request> requests = {};
        RequiredSlot requiredSlot = {};            ///< empty if the handler needs none
        Script accepted = answers("{'ret':'OK'}"); ///< one answer to each request
    };

    /// Returns a subject with empty tables. For @p OtherWorker see HANDLER_WITH_OTHER_WORKER.
    template <typename Handler, typename OtherWorker>
    static Subject subjectOf(const char *action, const char *usualSlots = "[]")
    {
        return {make<Handler>, make<OtherWorker>, action, usualSlots};
    }

    explicit HandlerTest(const Subject &subject) : m_subject(subject) {}

protected:
    /// Runs the handler, with the usual slots if @p slotArray is null.
    HandlerRun runWith(const Script &script, const char *slotArray = nullptr) const;

    LogCapture &log() { return *m_log; }

private Q_SLOTS:
    void init() { m_log.reset(new LogCapture(LogCapture::Unexpected::Passes)); }
    void cleanup() { m_log.reset(); }

    void eachOutcomeHasItsReply_data();
    void eachOutcomeHasItsReply();
    void eachOtherCodeLeavesTheReply_data();
    void eachOtherCodeLeavesTheReply();
    void requestHoldsWhatWasSaid_data();
    void requestHoldsWhatWasSaid();
    void withoutItsSlotNothingIsSent();
    void subclassReplacesTheWorker();

private:
    /// Creates a handler as the factory does.
    template <typename Handler>
    static IReplyableIntent *make()
    {
        return new Handler(nullptr);
    }

    [[nodiscard]] QVector<Outcome> allOutcomes() const;

    Subject m_subject;
    std::unique_ptr<LogCapture> m_log;
};

/// Base class of tests that add to HandlerTest; @p MakeSubject fills in the tables.
template <HandlerTest::Subject (*MakeSubject)()>
class HandlerTestOf : public HandlerTest
{
protected:
    HandlerTestOf() : HandlerTest(MakeSubject()) {}
};
