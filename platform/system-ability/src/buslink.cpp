// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "buslink.h"

#include "abilitytrace.h"
#include "busnames.h"
#include "callerror.h"
#include "contact1proxy.h"
#include "pendingrequest.h"
#include "sessionbus.h"

#include <kelvane/abilitycodes.h>

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QElapsedTimer>

#include <algorithm>
#include <functional>
#include <limits>

#include <dlfcn.h>

namespace {

/// Makes the bus's own time-out later than the caller's: until then, "no reply" from the bus can only mean
/// that the application has gone.
constexpr int GraceMsecs = 1000;

/// How long the end of the process waits for the thread, which usually takes no time.
constexpr int LongestFarewellMsecs = 3000;

/// Requests without an answer that are remembered.
constexpr int MostUnclear = 100;
/// How often the application may fail to report what became of one.
constexpr int MostErrors = 10;

PendingRequest::Result resultOf(const QDBusPendingReply<QString> &reply)
{
    if (reply.isError()) {
        const int code = codeOf(reply.error());
        return {code, {}, reply.error().name(), reply.error().message(), code == AbilityCode::TimedOut};
    }
    // A typed reply checks only as many arguments as it has types.
    const QString signature = reply.reply().signature();
    if (signature != QLatin1String("s")) {
        return {AbilityCode::MalformedAnswer, {}, QStringLiteral("signature"), signature};
    }
    return {AbilityCode::Success, reply.value(), {}, {}};
}

} // namespace

namespace {

/// Ends the link at the end of the process.
class LinkHolder
{
public:
    explicit LinkHolder(BusLink *link) : m_link(link) {}
    ~LinkHolder()
    {
        if (m_link->end()) {
            delete m_link;
            return;
        }
        // Leaks the link with everything it uses, including its code, in case somebody unloads the library.
        Dl_info self{};
        static const char ours = 0;
        if (dladdr(&ours, &self) != 0) {
            dlopen(self.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
        }
    }
    Q_DISABLE_COPY(LinkHolder)
    BusLink &link() const { return *m_link; }

private:
    BusLink *m_link;
};

} // namespace

BusLink &BusLink::instance()
{
    static const LinkHolder holder(new BusLink);
    return holder.link();
}

BusLink::BusLink() : m_thread(std::make_unique<QThread>())
{
    // Creates Qt's own connection manager before this object, so that it is destroyed after it.
    const QDBusConnection older(QStringLiteral("contact-ability"));
    m_thread->setObjectName(QStringLiteral("contact-ability"));
    moveToThread(m_thread.get());
    // At the end of the process there is no application object, and without one no event reaches a thread; a
    // direct connection works.
    connect(
        m_thread.get(), &QThread::finished, this,
        [this] {
            qDeleteAll(children());
            disconnectFromBus();
        },
        Qt::DirectConnection);
    m_thread->start();
}

BusLink::~BusLink() = default;

bool BusLink::end()
{
    m_isEnding = true; // ends a wait for a bus that does not answer
    m_thread->quit();
    // Polled, because a bounded wait may follow the wall clock and end at once when that is set.
    QElapsedTimer timer;
    timer.start();
    while (!m_thread->isFinished()) {
        if (timer.elapsed() >= LongestFarewellMsecs) {
            return false;
        }
        QThread::msleep(1);
    }
    return m_thread->wait();
}

void BusLink::send(const std::shared_ptr<PendingRequest> &request)
{
    QMetaObject::invokeMethod(
        this, [this, request] { call(request); }, Qt::QueuedConnection);
}

void BusLink::askLater(const std::shared_ptr<PendingRequest> &request)
{
    QMetaObject::invokeMethod(
        this,
        [this, request] {
            m_unclear.append({request, 0});
            if (m_unclear.size() > MostUnclear) {
                m_unclear.removeFirst();
            }
        },
        Qt::QueuedConnection);
}

// A watcher's functor keeps the connection open until the watcher is deleted: closing a connection deletes
// its unfinished calls, whoever still refers to them.

void BusLink::askWhatBecame()
{
    // Precedes the next request on the same connection, and so is answered before it.
    for (const Unclear &unclear : qAsConst(m_unclear)) {
        auto *watcher = new QDBusPendingCallWatcher(m_proxy->WasPerformed(unclear.request->id), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this,
                [this, open = m_proxy->connection(),
                 request = unclear.request](QDBusPendingCallWatcher *finished) {
                    Q_UNUSED(open)
                    take(request, *finished);
                    finished->deleteLater();
                });
    }
}

void BusLink::take(const std::shared_ptr<PendingRequest> &request, const QDBusPendingReply<bool> &reply)
{
    const auto unclear = std::find_if(m_unclear.begin(), m_unclear.end(),
                                      [&request](const Unclear &other) { return other.request == request; });
    if (unclear == m_unclear.end()) {
        return; // two requests asked, and the other one was answered first
    }
    if (reply.isError()) {
        // An application of an older version never knows; one that crashed or hangs may know later.
        const bool isHopeless = reply.error().type() == QDBusError::UnknownMethod;
        if (isHopeless || ++unclear->errors == MostErrors) {
            m_unclear.erase(unclear);
        }
        return;
    }
    m_unclear.erase(unclear);
    if (reply.value()) {
        AbilityTrace::tellPerformedAfterAll(request->action);
    }
}

void BusLink::call(const std::shared_ptr<PendingRequest> &request)
{
    const int remaining = request->remainingMsecs();
    if (remaining == 0) {
        return; // its caller has gone; don't start what nobody waits for
    }
    const QDBusError error = connectToBus(*request);
    if (request->remainingMsecs() == 0) {
        return;
    }
    if (error.isValid()) {
        request->finish({AbilityCode::NoBus, {}, error.name(), error.message()});
        return;
    }
    m_proxy->setTimeout(qMin(remaining, std::numeric_limits<int>::max() - GraceMsecs) + GraceMsecs);
    askWhatBecame();
    request->noteSent();
    auto *watcher = new QDBusPendingCallWatcher(
        m_proxy->Request(request->action, request->parameters, request->deadlineMsecs(), request->id), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [open = m_proxy->connection(), request](QDBusPendingCallWatcher *finished) {
                Q_UNUSED(open)
                request->finish(resultOf(*finished));
                finished->deleteLater();
            });
}

QDBusError BusLink::connectToBus(const PendingRequest &request)
{
    if (m_proxy && m_proxy->connection().isConnected()) {
        return {};
    }
    const QDBusConnection bus = openConnection(request);
    if (!bus.isConnected()) {
        disconnectFromBus();
        return QDBusError(QDBusError::NoServer,
                          QStringLiteral("nobody answers at the session bus's address"));
    }
    m_proxy = std::make_unique<Contact1Proxy>(BusName::service(), BusName::contactPath(), bus);
    return {};
}

QDBusConnection BusLink::openConnection(const PendingRequest &request)
{
    for (;;) {
        disconnectFromBus();
        m_connectionName = QStringLiteral("contact-ability-%1").arg(++m_connectionCount);
        const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        const auto isSame = [&address] {
            return qgetenv("DBUS_SESSION_BUS_ADDRESS") == address;
        };
        const QDBusConnection bus = SessionBus::connect(m_connectionName, [this, &request, &isSame] {
            return !m_isEnding && request.remainingMsecs() > 0 && isSame();
        });
        // The address may have changed while this one was silent.
        if (bus.isConnected() || m_isEnding || request.remainingMsecs() == 0 || isSame()) {
            return bus;
        }
    }
}

void BusLink::disconnectFromBus()
{
    m_proxy.reset();
    if (!m_connectionName.isEmpty()) {
        QDBusConnection::disconnectFromBus(m_connectionName);
    }
    m_connectionName.clear();
}
