// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// What the code under test did to the ability library, in order.
struct AbilityEvent
{
    enum Kind { Created, TimeoutSet, Requested, Deleted };

    Kind kind = Created;
    int ability = 0;        ///< number of the ability, counted from 1
    QString action;         ///< of a request
    QString parameters;     ///< of a request
    int timeout = 0;        ///< milliseconds; on a request, the last value set
    void *thread = nullptr; ///< QThread::currentThreadId()
};

/**
 * Controls the scripted ability library, which replaces the real one when the test runs with
 * contact_add_test_run(... SCRIPTED_ABILITY). Requests get the next queued answer, else the one set for the
 * action; otherwise the call fails with a warning. Thread-safe.
 */
class ScriptedAbility
{
public:
    /// What an unprepared request returns.
    enum { NothingPrepared = -9998 };

    /// Aborts the program with a message if the real library was loaded.
    static ScriptedAbility &instance();

    /// Forgets all answers, events and counts. Call it in init().
    virtual void reset() = 0;
    /// Queues an answer for one request, whatever its action.
    virtual void enqueue(int code, const QString &answer) = 0;
    /// Sets the answer to every request for @p action from now on.
    virtual void setAnswer(const QString &action, int code, const QString &answer) = 0;
    /// Makes the next request throw std::runtime_error(@p what).
    virtual void throwFromNextRequest(const char *what) = 0;
    /// Runs @p what during the next request, on its thread.
    virtual void duringNextRequest(const std::function<void()> &what) = 0;
    /// Makes createContact() return null from now on.
    virtual void refuseToCreate() = 0;
    /// Makes requests block until release(), or for at most @p atMost milliseconds each.
    virtual void block(int atMost = 30000) = 0;
    virtual void release() = 0;
    /// The number of requests currently blocked.
    virtual int blocked() const = 0;

    virtual QVector<AbilityEvent> events() const = 0;
    /// The number of abilities created and not yet deleted.
    virtual int alive() const = 0;

    /// The requests among the events.
    QVector<AbilityEvent> requests() const;
    /// The actions requested, in order.
    QStringList actions() const;
    /// The only request so far; fails the test and returns a default event unless there is exactly one.
    AbilityEvent onlyRequest() const;

protected:
    ~ScriptedAbility() = default;
};
