// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/iserviceplugin.h>

#include <QMutex>
#include <QObject>
#include <QSet>

class ContactReplyWidget;

/**
 * The plugin object loaded by the host. Creates the "contact" services and forwards the later replies of
 * cards. Lives on the GUI thread; createService() and releaseService() are thread-safe.
 */
class ContactPlugin : public QObject, public IServicePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IServicePlugin_iid)
    Q_INTERFACES(IServicePlugin)

public:
    explicit ContactPlugin(QObject *parent = nullptr);
    /// Services not yet released are left to the host.
    ~ContactPlugin() override;

    /// Reads the configuration file. Returns -3 on failure.
    int init() override;
    void uninit() override;
    QStringList getSupportService() override;
    IService *createService(const QString &name) override;
    /// Ignores pointers to anything but a live service of this plugin.
    void releaseService(IService *service) override;

public Q_SLOTS:
    /// Forwards @p reply to the host, or drops it if the host has not installed a handle yet.
    void slotMessageHandle(Reply reply);

private:
    QSet<IService *> m_services;
    QMutex m_mutex;                    ///< guards m_services and m_lastService
    ContactReplyWidget *m_replyWidget; ///< never deleted: cards still shown by the host send through it
    IService *m_lastService = nullptr;
};
