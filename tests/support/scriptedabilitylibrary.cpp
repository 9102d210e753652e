// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Built as a separate library, under the real library's name.

#include "scriptedability.h"

#include <kelvane/kelvaneabilitymanager.h>

#include <QElapsedTimer>
#include <QHash>
#include <QMutexLocker>
#include <QQueue>
#include <QThread>
#include <QWaitCondition>

#include <stdexcept>
#include <utility>

namespace {

struct Answer
{
    int code = ScriptedAbility::NothingPrepared;
    QString text;
};

class Script final : public ScriptedAbility
{
public:
    static Script &instance()
    {
        static Script script;
        return script;
    }

    void reset() override
    {
        const QMutexLocker locker(&m_mutex);
        m_queue.clear();
        m_answers.clear();
        m_events.clear();
        m_exception.clear();
        m_meanwhile = nullptr;
        m_created = 0;
        m_alive = 0;
        m_refuses = false;
        m_blocks = false;
        m_condition.wakeAll();
    }

    void enqueue(int code, const QString &answer) override
    {
        const QMutexLocker locker(&m_mutex);
        m_queue.enqueue({code, answer});
    }

    void setAnswer(const QString &action, int code, const QString &answer) override
    {
        const QMutexLocker locker(&m_mutex);
        m_answers.insert(action, {code, answer});
    }

    void throwFromNextRequest(const char *what) override
    {
        const QMutexLocker locker(&m_mutex);
        m_exception = what;
    }

    void duringNextRequest(const std::function<void()> &what) override
    {
        const QMutexLocker locker(&m_mutex);
        m_meanwhile = what;
    }

    void refuseToCreate() override
    {
        const QMutexLocker locker(&m_mutex);
        m_refuses = true;
    }

    void block(int atMost) override
    {
        const QMutexLocker locker(&m_mutex);
        m_blocks = true;
        m_blocksAtMost = atMost;
    }

    void release() override
    {
        const QMutexLocker locker(&m_mutex);
        m_blocks = false;
        m_condition.wakeAll();
    }

    int blocked() const override
    {
        const QMutexLocker locker(&m_mutex);
        return m_blocked;
    }

    QVector<AbilityEvent> events() const override
    {
        const QMutexLocker locker(&m_mutex);
        return m_events;
    }

    int alive() const override
    {
        const QMutexLocker locker(&m_mutex);
        return m_alive;
    }

    /// Returns the new ability's number; 0 if refused.
    int created()
    {
        const QMutexLocker locker(&m_mutex);
        if (m_refuses) {
            return 0;
        }
        ++m_alive;
        record({AbilityEvent::Created, ++m_created, {}, {}, 0, nullptr});
        return m_created;
    }

    void deleted(int ability)
    {
        const QMutexLocker locker(&m_mutex);
        --m_alive;
        record({AbilityEvent::Deleted, ability, {}, {}, 0, nullptr});
    }

    void timeoutSet(int ability, int msecs)
    {
        const QMutexLocker locker(&m_mutex);
        record({AbilityEvent::TimeoutSet, ability, {}, {}, msecs, nullptr});
    }

    Answer requested(int ability, int timeout, const QString &action, const QString &parameters)
    {
        QMutexLocker locker(&m_mutex);
        record({AbilityEvent::Requested, ability, action, parameters, timeout, nullptr});
        waitWhileBlocked();
        if (m_meanwhile) {
            const std::function<void()> meanwhile = std::exchange(m_meanwhile, nullptr);
            locker.unlock();
            meanwhile();
            locker.relock();
        }
        if (!m_exception.isNull()) {
            const std::runtime_error error(m_exception.constData());
            m_exception.clear();
            throw error;
        }
        if (!m_queue.isEmpty()) {
            return m_queue.dequeue();
        }
        const auto answer = m_answers.constFind(action);
        if (answer != m_answers.constEnd()) {
            return answer.value();
        }
        locker.unlock();
        qWarning("No answer was prepared for \"%s\".", qPrintable(action));
        return {};
    }

private:
    void record(AbilityEvent event)
    {
        event.thread = QThread::currentThreadId();
        m_events.append(event);
    }

    void waitWhileBlocked()
    {
        QElapsedTimer timer;
        timer.start();
        ++m_blocked;
        while (m_blocks && timer.elapsed() < m_blocksAtMost) {
            m_condition.wait(&m_mutex, static_cast<unsigned long>(m_blocksAtMost));
        }
        --m_blocked;
    }

    mutable QMutex m_mutex;
    QWaitCondition m_condition;
    QQueue<Answer> m_queue;
    QHash<QString, Answer> m_answers;
    QVector<AbilityEvent> m_events;
    QByteArray m_exception;
    std::function<void()> m_meanwhile;
    int m_created = 0;
    int m_alive = 0;
    int m_blocked = 0;
    int m_blocksAtMost = 0;
    bool m_refuses = false;
    bool m_blocks = false;
};

class ScriptedContact final : public ContactAbility
{
public:
    explicit ScriptedContact(int number) : m_number(number) {}
    ~ScriptedContact() override { Script::instance().deleted(m_number); }

    void setTimeout(const int &msecs) override
    {
        m_timeout = msecs;
        Script::instance().timeoutSet(m_number, msecs);
    }

    int request(const QString &action, const QString &parameters, QString &answer) override
    {
        const Answer prepared = Script::instance().requested(m_number, m_timeout, action, parameters);
        // Even on failure, so that a test notices if the code under test reads it then.
        answer = prepared.text;
        return prepared.code;
    }

private:
    const int m_number;
    int m_timeout = 0;
};

} // namespace

ContactAbility *KelvaneAbilityManager::createContact()
{
    const int number = Script::instance().created();
    return number == 0 ? nullptr : new ScriptedContact(number);
}

extern "C" Q_DECL_EXPORT ScriptedAbility *scriptedAbilityControls()
{
    return &Script::instance();
}
