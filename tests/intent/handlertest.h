// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "handlerrun.h"
#include "logcapture.h"

#include <QObject>

#include <memory>

/**
 * The test of one handler: derive from it and list the handler's outcomes and requests. What all handlers
 * answer alike is tested here, and so is that a code without a row in outcomes() leaves the reply alone.
 */
class HandlerTest : public QObject
{
    Q_OBJECT

public:
    using Maker = IReplyableIntent *(*)();

    /// Makes a handler, as the factory does.
    template <typename Handler>
    static IReplyableIntent *make()
    {
        return new Handler(nullptr);
    }

protected:
    struct Subject
    {
        Maker make;
        Maker makeReplaced;     ///< a subclass whose worker returns 77
        const char *action;     ///< the last one that it asks of the contacts application
        const char *usualSlots; ///< enough for a request, in the form that intentWith() takes
        Script accepted = answers("{'ret':'OK'}"); ///< one answer to each request
    };

    /// What is said if the application does as @ref script tells.
    struct Outcome
    {
        const char *name;
        Script script;
        Expected expected;
        const char *slotArray = nullptr; ///< null: the usual ones
    };

    /// The parameters of the last request, for what was said.
    struct Request
    {
        const char *name;
        const char *slotArray;
        const char *parameters;
    };

    explicit HandlerTest(const Subject &subject) : m_subject(subject) {}

    [[nodiscard]] virtual QVector<Outcome> outcomes() const = 0;
    [[nodiscard]] virtual QVector<Request> requests() const = 0;

    /// Runs the handler; the usual slots stand in for a null @p slotArray.
    HandlerRun runWith(const Script &script, const char *slotArray = nullptr) const;

    /// Fails unless, without the slot it needs, the handler sends nothing and writes the critical record @p
    /// text.
    void compareMissingSlot(const char *slotArray, const char *file, const char *text,
                            const char *function) const;

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
    void subclassReplacesTheWorker();

private:
    [[nodiscard]] QVector<Outcome> allOutcomes() const;

    Subject m_subject;
    std::unique_ptr<LogCapture> m_log;
};
