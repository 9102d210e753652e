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
    int ability = 0;        ///< counts the abilities given out, from 1
    QString action;         ///< of a request
    QString parameters;     ///< of a request
    int timeout = 0;        ///< milliseconds: as set, and on a request what had been set before
    void *thread = nullptr; ///< QThread::currentThreadId()
};

/**
 * The controls of the scripted ability library, which takes the real one's place in this process when the
 * test runs with contact_add_test_run(... SCRIPTED_ABILITY). Its requests answer what the test has prepared:
 * first what is queued, else what is set for the action, else a failure of the call with a warning. Safe on
 * any thread.
 */
class ScriptedAbility
{
public:
    /// What an unprepared request returns.
    enum { NothingPrepared = -9998 };

    /// Ends the program with a clear text when the real library was loaded.
    static ScriptedAbility &instance();

    /// Forgets everything: answers, events, counts. For init().
    virtual void reset() = 0;
    /// Appends one answer for the next request, whatever its action.
    virtual void enqueue(int code, const QString &answer) = 0;
    /// Answers every request for @p action from now on.
    virtual void setAnswer(const QString &action, int code, const QString &answer) = 0;
    /// The next request throws std::runtime_error(@p what).
    virtual void throwFromNextRequest(const char *what) = 0;
    /// Runs @p what in the middle of the next request, on its thread: for what else may happen meanwhile.
    virtual void duringNextRequest(const std::function<void()> &what) = 0;
    /// createContact() gives null from now on.
    virtual void refuseToCreate() = 0;
    /// Requests block from now on until release(), or until this many milliseconds have passed.
    virtual void block(int atMost = 30000) = 0;
    virtual void release() = 0;
    /// How many requests are blocked now.
    virtual int blocked() const = 0;

    virtual QVector<AbilityEvent> events() const = 0;
    /// Abilities created and not yet deleted.
    virtual int alive() const = 0;

    /// The requests among the events.
    QVector<AbilityEvent> requests() const;
    /// The actions requested, in order.
    QStringList actions() const;
    /// The one request made so far; fails the test and gives an empty event when there is not exactly one.
    AbilityEvent onlyRequest() const;

protected:
    ~ScriptedAbility() = default;
};
