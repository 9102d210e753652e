// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Tells ThreadSanitizer about the synchronisation inside Qt's libraries, which are not instrumented: locks,
// posted events, and the end of a thread. A tsan build links it before Qt everywhere, so that calls from our
// code arrive here first; each function forwards the call and annotates the happens-before edge. Thread
// starts and standard mutexes need no help.

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QMetaObject>
#include <QMutex>
#include <QReadWriteLock>
#include <QThread>
#include <QWaitCondition>

#include <dlfcn.h>

extern "C" {
void __tsan_acquire(void *address); // NOLINT(bugprone-reserved-identifier)
void __tsan_release(void *address); // NOLINT(bugprone-reserved-identifier)
}

namespace {

/// A signal's receivers are unknown here, so every emission is ordered before all events delivered later.
char anySignal = 0;

/// Qt's definition of @p symbol, hidden by ours; a member function takes its object as the first argument.
template <typename Function>
Function *next(const char *symbol)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, symbol));
}

bool isDelivered(void **data)
{
    __tsan_acquire(data[0]); // the receiver
    __tsan_acquire(&anySignal);
    return false; // not handled: Qt goes on as usual
}

// Called before each event, in every thread.
const bool Listens = QInternal::registerCallback(QInternal::EventNotifyCallback, isDelivered);

} // namespace

// Locks.

void QMutex::lock() noexcept
{
    static auto *const real = next<void(QMutex *)>("_ZN6QMutex4lockEv");
    real(this);
    __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout) noexcept
{
    static auto *const real = next<bool(QMutex *, int)>("_ZN6QMutex7tryLockEi");
    const bool isLocked = real(this, timeout);
    if (isLocked) {
        __tsan_acquire(this);
    }
    return isLocked;
}

void QMutex::unlock() noexcept
{
    static auto *const real = next<void(QMutex *)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    real(this);
}

void QReadWriteLock::lockForRead()
{
    static auto *const real = next<void(QReadWriteLock *)>("_ZN14QReadWriteLock11lockForReadEv");
    real(this);
    __tsan_acquire(this);
}

void QReadWriteLock::lockForWrite()
{
    static auto *const real = next<void(QReadWriteLock *)>("_ZN14QReadWriteLock12lockForWriteEv");
    real(this);
    __tsan_acquire(this);
}

void QReadWriteLock::unlock()
{
    static auto *const real = next<void(QReadWriteLock *)>("_ZN14QReadWriteLock6unlockEv");
    __tsan_release(this);
    real(this);
}

bool QWaitCondition::wait(QMutex *mutex, QDeadlineTimer deadline)
{
    static auto *const real = next<bool(QWaitCondition *, QMutex *, QDeadlineTimer)>(
        "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    __tsan_release(mutex);
    const bool isWoken = real(this, mutex, deadline);
    __tsan_acquire(mutex);
    return isWoken;
}

bool QWaitCondition::wait(QMutex *mutex, unsigned long msecs)
{
    static auto *const real =
        next<bool(QWaitCondition *, QMutex *, unsigned long)>("_ZN14QWaitCondition4waitEP6QMutexm");
    __tsan_release(mutex);
    const bool isWoken = real(this, mutex, msecs);
    __tsan_acquire(mutex);
    return isWoken;
}

// Events.

void QCoreApplication::postEvent(QObject *receiver, QEvent *event, int priority)
{
    static auto *const real =
        next<void(QObject *, QEvent *, int)>("_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
    __tsan_release(receiver);
    real(receiver, event, priority);
}

void QObject::deleteLater()
{
    static auto *const real = next<void(QObject *)>("_ZN7QObject11deleteLaterEv");
    __tsan_release(this);
    real(this);
}

bool QMetaObject::invokeMethodImpl(QObject *object, QtPrivate::QSlotObjectBase *slot, Qt::ConnectionType type,
                                   void *ret)
{
    static auto *const real = next<bool(QObject *, QtPrivate::QSlotObjectBase *, Qt::ConnectionType, void *)>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    __tsan_release(object);
    return real(object, slot, type, ret);
}

void QMetaObject::activate(QObject *sender, const QMetaObject *meta, int signal, void **arguments)
{
    static auto *const real = next<void(QObject *, const QMetaObject *, int, void **)>(
        "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_release(&anySignal);
    real(sender, meta, signal, arguments);
}

// Threads. The sanitizer sees no edge from a thread that has ended before wait() is called.

void QThread::start(Priority priority)
{
    static auto *const real = next<void(QThread *, Priority)>("_ZN7QThread5startENS_8PriorityE");
    // Runs in the thread, at its end. Starting again connects once more, which is harmless.
    QObject::connect(
        this, &QThread::finished, this, [this] { __tsan_release(this); }, Qt::DirectConnection);
    real(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static auto *const real = next<bool(QThread *, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool hasEnded = real(this, deadline);
    if (hasEnded) {
        __tsan_acquire(this);
    }
    return hasEnded;
}

bool QThread::wait(unsigned long msecs)
{
    static auto *const real = next<bool(QThread *, unsigned long)>("_ZN7QThread4waitEm");
    const bool hasEnded = real(this, msecs);
    if (hasEnded) {
        __tsan_acquire(this);
    }
    return hasEnded;
}
