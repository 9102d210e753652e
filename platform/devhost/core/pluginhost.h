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
 * Loads one plugin and talks to it. Lives on the GUI thread. Lets no exception of the plugin through.
 *
 * The plugin stays loaded until the process ends, since cards that are still shown need its code.
 */
class PluginHost final : public QObject
{
    Q_OBJECT

public:
    explicit PluginHost(QObject *parent = nullptr);
    ~PluginHost() override;

    /// @p plugin is a file, or a name such as "contact-plugin" that is looked up in the installed folder.
    /// Returns false and sets problem() when it cannot be used. Call once per host.
    bool load(const QString &plugin);
    bool isLoaded() const { return m_plugin != nullptr; }
    const PluginProblem &problem() const { return m_problem; }
    /// The file that was found; empty when there is none.
    QString path() const { return m_path; }

    /// Whether IService::service() wants a thread other than this one.
    bool needsOwnThread() const;
    /// A service for one dialogue; null when the plugin gives none.
    ServicePtr createService();

    /// The folder of installed plugins.
    static QString installedFolder();

Q_SIGNALS:
    /// A reply outside of any call, for instance from a card's button. Always from the event loop.
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
