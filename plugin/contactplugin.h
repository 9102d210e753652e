// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/iserviceplugin.h>

#include <QMutex>
#include <QObject>
#include <QSet>

class ContactReplyWidget;

/**
 * What the host loads: gives out services called "contact" and passes on what a card answers later. Lives on
 * the GUI thread; createService() and releaseService() may be called on any.
 */
class ContactPlugin : public QObject, public IServicePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IServicePlugin_iid)
    Q_INTERFACES(IServicePlugin)

public:
    explicit ContactPlugin(QObject *parent = nullptr);
    /// Services that are still out belong to the host; it has released them by now.
    ~ContactPlugin() override;

    /// Reads the configuration file; -3 when that fails.
    int init() override;
    void uninit() override;
    QStringList getSupportService() override;
    IService *createService(const QString &name) override;
    /// Ignores a pointer that is not a live service of this plugin.
    void releaseService(IService *service) override;

public Q_SLOTS:
    /// Hands @p reply to the host; dropped while the host has not installed its handle.
    void slotMessageHandle(Reply reply);

private:
    QSet<IService *> m_services;
    QMutex m_mutex;                    ///< guards m_services and m_lastService
    ContactReplyWidget *m_replyWidget; ///< never deleted: cards that the host still shows send through it
    IService *m_lastService = nullptr;
};
