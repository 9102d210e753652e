// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "pluginhost.h"
#include "turnresult.h"

#include <QObject>
#include <QThread>

namespace devhost {

/**
 * Puts one semantic text at a time to the plugin: service() on a worker thread, then getServiceReply() on the
 * GUI thread, with a fresh service for every call. Lives on the GUI thread and never blocks it, except in its
 * destructor, which waits for a running call.
 */
class TurnRunner final : public QObject
{
    Q_OBJECT

public:
    /// @p host must outlive the runner.
    explicit TurnRunner(PluginHost &host, QObject *parent = nullptr);
    ~TurnRunner() override;

    bool isRunning() const { return m_isRunning; }
    /// Must not be called while isRunning(). finished() always follows, from the event loop.
    void run(const QString &semantic);

Q_SIGNALS:
    void finished(const devhost::TurnResult &result);

private:
    void call(IService &service, const QString &semantic, TurnResult &result) const;
    void fetchReply(TurnResult result);
    void finish(const TurnResult &result);

    PluginHost &m_host;
    QThread m_thread;
    QObject m_worker; ///< lives on m_thread
    ServicePtr m_service;
    bool m_isRunning = false;
};

} // namespace devhost
