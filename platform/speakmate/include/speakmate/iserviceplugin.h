// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/iservice.h>

#include <QStringList>
#include <QtPlugin>

#include <functional>

/**
 * The interface between the host and a plugin. The order of the virtual functions is the binary contract with
 * plugins built elsewhere; extend it only under a new interface id.
 */
class IServicePlugin
{
public:
    virtual ~IServicePlugin() = default;

    /// Called once after loading. Returns 0 on success; a plugin that fails is not used.
    virtual int init() = 0;
    virtual void uninit() = 0;
    /// The names that createService() accepts.
    virtual QStringList getSupportService() = 0;
    /// Creates a service, owned by the plugin until releaseService(); null for an unknown name.
    virtual IService *createService(const QString &name) = 0;
    virtual void releaseService(IService *service) = 0;
    /// Whether service() must be called on a thread other than the GUI thread.
    virtual bool needRunInDifferentThread() { return true; }
    virtual bool isAutoDetectSession() { return true; }
    virtual int getPluginProtocolVersion() { return 1; }
    /// Installs the function that receives unsolicited replies, which arise from actions on a card.
    virtual void setMessageHandle(std::function<void(IServicePlugin *, Reply)> handle)
    {
        messageHandle = std::move(handle);
    }

protected:
    std::function<void(IServicePlugin *, Reply)> messageHandle;
};

#define IServicePlugin_iid "com.kelvane.sonvaro.speakmate.3"
Q_DECLARE_INTERFACE(IServicePlugin, IServicePlugin_iid)
