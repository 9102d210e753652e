// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "pluginproblem.h"

#include <speakmate/iserviceplugin.h>

#include <QObject>
#include <QPluginLoader>

#include <memory>

namespace devhost {

class Mailbox;

/// Gives a service back to the plugin that made it.
struct ServiceReleaser
{
    IServicePlugin *plugin = nullptr;
    void operator()(IService *service) const;
};
using ServicePtr = std::unique_ptr<IService, ServiceReleaser>;

/**
 * Loads one plugin and talks to it. Lives on the GUI thread. No exception of the plugin leaves it.
 *
 * The plugin's code stays in the process until it ends, since cards that are still shown need it.
 */
class PluginHost final : public QObject
{
    Q_OBJECT

public:
    explicit PluginHost(QObject *parent = nullptr);
    ~PluginHost() override;

    /// @p plugin is a file, or a name such as "contact-plugin" that is looked up in the installed folder.
    /// False with problem() set when it cannot be used. Once per host.
    bool load(const QString &plugin);
    bool isLoaded() const { return m_plugin != nullptr; }
    const PluginProblem &problem() const { return m_problem; }
    /// Of the file that was found; empty when there is none.
    QString path() const { return m_path; }

    /// Whether IService::service() is to be called on another thread than this one.
    bool needsOwnThread() const;
    /// A service for one dialogue; null when the plugin gives none.
    ServicePtr createService();

    /// Where installed plugins are.
    static QString installedFolder();

Q_SIGNALS:
    /// A reply that belongs to no call: from a button of a card, for instance. Always from the event loop.
    void repliedLater(const Reply &reply);

private:
    bool fail(PluginProblem::Kind kind, const QString &what, const QString &whatToDo);
    bool find(const QString &plugin);
    bool check();
    bool start(QObject *root);

    QPluginLoader m_loader;
    IServicePlugin *m_plugin = nullptr;
    QString m_path;
    QString m_serviceName;
    PluginProblem m_problem;
    std::shared_ptr<Mailbox> m_mailbox;
};

} // namespace devhost
