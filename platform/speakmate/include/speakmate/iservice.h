// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/reply.h>

#include <QObject>
#include <QString>

using ServicePriority = int;

/// Results of IService::service(). 0: handled; -20: the service has no factory; -21: the intent failed; -100:
/// the semantic text could not be read.
using IRet = int;

/**
 * One service of a plugin, made by IServicePlugin::createService() and given back through
 * IServicePlugin::releaseService().
 *
 * The host calls service() on a worker thread when the plugin asks for it, and getServiceReply() on the GUI
 * thread once service() has returned, because the reply may build widgets. Calls on one service never
 * overlap.
 */
class IService : public QObject
{
    Q_OBJECT

public:
    virtual QString serviceName() = 0;
    virtual ServicePriority servicePriority() = 0;
    virtual bool canHandle(const QString &name) = 0;
    /// @p semantic is the understanding result of one utterance as JSON.
    virtual IRet service(const QString &semantic) = 0;
    /// The reply to the last service() call. Owned by the service; valid until its next call or its release.
    virtual Reply *getServiceReply() = 0;

Q_SIGNALS:
    void signalSendShowMessage(Reply reply);
};
