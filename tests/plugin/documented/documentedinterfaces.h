// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <functional>

/**
 * The host's interfaces, written from their documentation alone, never from the headers: a plugin with
 * functions, bases or members in another order does not work with a host built from these. Never let them
 * share anything with the real headers.
 */
namespace Documented {

struct Reply
{
    QVariant code;
    QVariant displayText;
    QVariant speechText;
    void *widget;
    int type;
    bool endOfSession;
};

class Service : public QObject
{
public:
    virtual QString serviceName() = 0;
    virtual int servicePriority() = 0;
    virtual bool canHandle(const QString &name) = 0;
    virtual int service(const QString &semantic) = 0;
    virtual Reply *getServiceReply() = 0;
};

class ServicePlugin
{
public:
    virtual ~ServicePlugin() = default;
    virtual int init() = 0;
    virtual void uninit() = 0;
    virtual QStringList getSupportService() = 0;
    virtual Service *createService(const QString &name) = 0;
    virtual void releaseService(Service *service) = 0;
    virtual bool needRunInDifferentThread() { return true; }
    virtual bool isAutoDetectSession() { return true; }
    virtual int getPluginProtocolVersion() { return 1; }
    virtual void setMessageHandle(std::function<void(ServicePlugin *, Reply)> handle)
    {
        messageHandle = std::move(handle);
    }

    std::function<void(ServicePlugin *, Reply)> messageHandle;
};

/// Turns results into cards.
class Dispatcher : public QObject
{
public:
    QObject *interface;
    void *card;
    // The record of the last created conference.
    bool isSchedule;
    qint64 scheduleTimeMsecs;
    void *conferences;
    void *duplicateUsers;
    void *normalUsers;
    void *notExistUsers;
    int canInviteNum;
};

class Plugin : public QObject, public ServicePlugin
{
public:
    void *services;
    void *mutex;
    Dispatcher *dispatcher;
    Service *lastService;
};

} // namespace Documented
