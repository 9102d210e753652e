// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "turnrunner.h"

#include "guarded.h"

#include <QElapsedTimer>

namespace devhost {

namespace {

double msecsOf(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace

TurnRunner::TurnRunner(PluginHost &host, QObject *parent) : QObject(parent), m_host(host)
{
    m_thread.setObjectName(QStringLiteral("plugin"));
    m_worker.moveToThread(&m_thread);
    m_thread.start();
}

TurnRunner::~TurnRunner()
{
    m_thread.quit();
    m_thread.wait();
}

void TurnRunner::run(const QString &semantic)
{
    Q_ASSERT(!m_isRunning);
    m_isRunning = true;
    m_service = m_host.createService();
    if (m_service == nullptr) {
        TurnResult result;
        result.failure = m_host.isLoaded() ? tr("The plugin gave no service.") : tr("No plugin is loaded.");
        QMetaObject::invokeMethod(
            this, [this, result] { finish(result); }, Qt::QueuedConnection);
        return;
    }
    // The service belongs to this object until finish(), and the destructor waits for the thread.
    const auto work = [this, service = m_service.get(), semantic] {
        TurnResult result;
        call(*service, semantic, result);
        QMetaObject::invokeMethod(
            this, [this, result] { fetchReply(result); }, Qt::QueuedConnection);
    };
    QObject *context = m_host.needsOwnThread() ? &m_worker : this;
    QMetaObject::invokeMethod(context, work, Qt::QueuedConnection);
}

void TurnRunner::call(IService &service, const QString &semantic, TurnResult &result) const
{
    QElapsedTimer timer;
    timer.start();
    const QString thrown = guarded([&] { result.status = service.service(semantic); });
    result.serviceMsecs = msecsOf(timer);
    if (!thrown.isEmpty()) {
        result.failure = tr("The plugin's service() threw: %1").arg(thrown);
    }
}

void TurnRunner::fetchReply(TurnResult result)
{
    if (result.failure.isEmpty()) {
        QElapsedTimer timer;
        timer.start();
        const Reply *reply = nullptr;
        const QString thrown = guarded([this, &reply] { reply = m_service->getServiceReply(); });
        if (!thrown.isEmpty()) {
            result.failure = tr("The plugin's getServiceReply() threw: %1").arg(thrown);
        } else if (reply == nullptr) {
            result.failure = tr("The plugin's getServiceReply() gave no reply.");
        } else {
            result.reply = *reply;
        }
        result.replyMsecs = msecsOf(timer);
    }
    finish(result);
}

void TurnRunner::finish(const TurnResult &result)
{
    m_service.reset();
    m_isRunning = false;
    Q_EMIT finished(result);
}

} // namespace devhost
