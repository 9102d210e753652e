// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "handlerrun.h"
#include "logcapture.h"

#include <QCoreApplication>
#include <QObject>
#include <QTest>

#include <memory>

/// Derives OtherWorker from @p Handler: its @p worker returns HandlerTest::OtherCode.
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

/// The main function of a test that needs no more than HandlerTest.
#define HANDLER_TEST_MAIN(subject)                                                                           \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        QCoreApplication application(argc, argv);                                                            \
        HandlerTest test(subject);                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

/**
 * Tests a handler against its tables of outcomes and requests, and what all handlers have in common; a code
 * without an outcome must leave the reply alone. Derive from HandlerTestOf to add tests of one handler.
 */
class HandlerTest : public QObject
{
    Q_OBJECT

public:
    static constexpr int OtherCode = 77;

    /// The reply expected when the application does as @ref script says.
    struct Outcome
    {
        const char *name;
        Script script;
        Expected expected;
        const char *slotArray = nullptr; ///< null: the usual ones
    };

    /// The parameters of the last request made for these slots.
    struct Request
    {
        const char *name;
        const char *slotArray;
        const char *parameters;
    };

    /// The slot without which the handler sends nothing.
    struct RequiredSlot
    {
        const char *others;   ///< slots that do not make up for it
        const char *file;     ///< that logs what is missing
        const char *record;   ///< the text that it logs
        const char *function; ///< the whole signature
    };

    struct Subject
    {
        IReplyableIntent *(*make)();
        IReplyableIntent *(*makeOtherWorker)();
        const char *action;     ///< of the last request
        const char *usualSlots; ///< enough for a request, in the form that intentWith() takes
        QVector<Outcome> outcomes = {};
        QVector<Request> requests = {};
        RequiredSlot requiredSlot = {};            ///< empty if the handler does without slots
        Script accepted = answers("{'ret':'OK'}"); ///< one answer to each request
    };

    /// The tables are still to be filled in. For @p OtherWorker see HANDLER_WITH_OTHER_WORKER.
    template <typename Handler, typename OtherWorker>
    static Subject subjectOf(const char *action, const char *usualSlots = "[]")
    {
        return {make<Handler>, make<OtherWorker>, action, usualSlots};
    }

    explicit HandlerTest(const Subject &subject) : m_subject(subject) {}

protected:
    /// Runs the handler; the usual slots stand in for a null @p slotArray.
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
    /// Makes a handler, as the factory does.
    template <typename Handler>
    static IReplyableIntent *make()
    {
        return new Handler(nullptr);
    }

    [[nodiscard]] QVector<Outcome> allOutcomes() const;

    Subject m_subject;
    std::unique_ptr<LogCapture> m_log;
};

/// Derive a test that adds to HandlerTest from it; @p MakeSubject fills in the tables.
template <HandlerTest::Subject (*MakeSubject)()>
class HandlerTestOf : public HandlerTest
{
protected:
    HandlerTestOf() : HandlerTest(MakeSubject()) {}
};
