// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/iservice.h>

#include <QStringList>
#include <QtPlugin>

#include <functional>

/**
 * The interface by which the host talks to a plugin. The order of the virtual functions is the contract with
 * plugins built elsewhere; append only with a new interface id.
 */
class IServicePlugin
{
public:
    virtual ~IServicePlugin() = default;

    /// Called once after loading. 0 is success; a plugin that fails is not used.
    virtual int init() = 0;
    virtual void uninit() = 0;
    /// The names createService() knows.
    virtual QStringList getSupportService() = 0;
    /// A new service, owned by the plugin until releaseService(); null for a name it does not know.
    virtual IService *createService(const QString &name) = 0;
    virtual void releaseService(IService *service) = 0;
    /// Whether service() is to be called on a thread other than the GUI's.
    virtual bool needRunInDifferentThread() { return true; }
    virtual bool isAutoDetectSession() { return true; }
    virtual int getPluginProtocolVersion() { return 1; }
    /// Installs the function that receives replies which arise later, from actions on a card.
    virtual void setMessageHandle(std::function<void(IServicePlugin *, Reply)> handle)
    {
        messageHandle = std::move(handle);
    }

protected:
    std::function<void(IServicePlugin *, Reply)> messageHandle;
};

#define IServicePlugin_iid "com.kelvane.sonvaro.speakmate.3"
Q_DECLARE_INTERFACE(IServicePlugin, IServicePlugin_iid)
