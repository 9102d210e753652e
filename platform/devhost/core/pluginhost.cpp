// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pluginhost.h"

#include "guarded.h"
#include "mailbox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>

namespace devhost {

void ServiceReleaser::operator()(IService *service) const
{
    const QString thrown = guarded([this, service] { plugin->releaseService(service); });
    if (!thrown.isEmpty()) {
        qWarning("The plugin's releaseService() threw: %s", qUtf8Printable(thrown));
    }
}

PluginHost::PluginHost(QObject *parent) : QObject(parent) {}

PluginHost::~PluginHost()
{
    if (m_plugin == nullptr) {
        return;
    }
    m_mailbox->close();
    const QString thrown = guarded([this] {
        m_plugin->setMessageHandle({});
        m_plugin->uninit();
    });
    if (!thrown.isEmpty()) {
        qWarning("The plugin's uninit() threw: %s", qUtf8Printable(thrown));
    }
}

bool PluginHost::load(const QString &plugin)
{
    Q_ASSERT(m_plugin == nullptr);
    if (!find(plugin) || !check()) {
        return false;
    }
    QObject *root = nullptr;
    const QString thrown = guarded([this, &root] { root = m_loader.instance(); });
    if (root == nullptr) {
        return fail(PluginProblem::CannotLoad,
                    tr("The plugin %1 cannot be loaded: %2")
                        .arg(m_path, thrown.isEmpty() ? m_loader.errorString() : thrown),
                    tr("Install the libraries that it names; \"ldd\" lists those that are missing."));
    }
    return start(root);
}

bool PluginHost::fail(PluginProblem::Kind kind, const QString &what, const QString &whatToDo)
{
    m_problem = {kind, what, whatToDo};
    return false;
}

QString PluginHost::installedFolder()
{
    // The program may have been moved together with its prefix.
    const QDir beside(QCoreApplication::applicationDirPath() + QStringLiteral("/" DEVHOST_PLUGIN_DIR));
    return beside.exists() ? beside.canonicalPath() : QStringLiteral(DEVHOST_INSTALLED_PLUGIN_DIR);
}

bool PluginHost::find(const QString &plugin)
{
    QFileInfo file(plugin);
    const bool isName = !plugin.contains(QLatin1Char('/')) && !file.exists();
    if (isName) {
        file.setFile(QDir(installedFolder()), QStringLiteral("lib%1.so").arg(plugin));
    }
    if (!file.isFile()) {
        return fail(PluginProblem::Missing, tr("There is no plugin %1.").arg(file.filePath()),
                    isName ? tr("Install it there, or give its file with --plugin PATH.")
                           : tr("Check the path after --plugin."));
    }
    m_path = file.absoluteFilePath();
    return true;
}

bool PluginHost::check()
{
    m_loader.setFileName(m_path);
    const QJsonObject metaData = m_loader.metaData();
    if (metaData.isEmpty()) {
        return fail(PluginProblem::NotAPlugin, tr("%1 is not a Qt plugin.").arg(m_path),
                    tr("Give the plugin's own file, such as libcontact-plugin.so; "
                       "its class needs Q_PLUGIN_METADATA."));
    }
    const QString interfaceId = metaData.value(QLatin1String("IID")).toString();
    if (interfaceId != QLatin1String(IServicePlugin_iid)) {
        return fail(PluginProblem::OtherInterface,
                    tr("The plugin %1 has the interface \"%2\"; this host speaks \"%3\".")
                        .arg(m_path, interfaceId, QLatin1String(IServicePlugin_iid)),
                    tr("Build the plugin with this host's headers, or use the host it was built for."));
    }
    return true;
}

bool PluginHost::start(QObject *root)
{
    auto *plugin = qobject_cast<IServicePlugin *>(root);
    if (plugin == nullptr) {
        return fail(PluginProblem::OtherInterface,
                    tr("The root object of %1 is not an IServicePlugin.").arg(m_path),
                    tr("Its class needs Q_INTERFACES(IServicePlugin)."));
    }
    int code = 0;
    QStringList names;
    const QString thrown = guarded([&code, &names, plugin] {
        code = plugin->init();
        if (code == 0) {
            names = plugin->getSupportService();
        }
    });
    if (!thrown.isEmpty() || code != 0) {
        return fail(PluginProblem::InitFailed,
                    thrown.isEmpty()
                        ? tr("The plugin %1 failed to start: init() answered %2.").arg(m_path).arg(code)
                        : tr("The plugin %1 failed to start: init() threw %2.").arg(m_path, thrown),
                    tr("A missing or broken configuration file is the usual cause; the contact plugin reads "
                       "/etc/xdg/kelvane-speakmate-plugins/contact-plugin.json. --verbose shows its log."));
    }
    if (names.isEmpty()) {
        return fail(PluginProblem::NoService, tr("The plugin %1 offers no service.").arg(m_path),
                    tr("Its getSupportService() has to name at least one."));
    }
    m_plugin = plugin;
    m_serviceName = names.first();
    m_mailbox = std::make_shared<Mailbox>(this, [this](const Reply &reply) { Q_EMIT repliedLater(reply); });
    const QString handleThrown = guarded([this] {
        m_plugin->setMessageHandle(
            [mailbox = m_mailbox](IServicePlugin *, const Reply &reply) { mailbox->post(reply); });
    });
    if (!handleThrown.isEmpty()) {
        qWarning("The plugin's setMessageHandle() threw: %s", qUtf8Printable(handleThrown));
    }
    return true;
}

bool PluginHost::needsOwnThread() const
{
    bool needs = true;
    if (m_plugin != nullptr) {
        guarded([this, &needs] { needs = m_plugin->needRunInDifferentThread(); });
    }
    return needs;
}

ServicePtr PluginHost::createService()
{
    IService *service = nullptr;
    if (m_plugin != nullptr) {
        const QString thrown =
            guarded([this, &service] { service = m_plugin->createService(m_serviceName); });
        if (!thrown.isEmpty()) {
            qWarning("The plugin's createService() threw: %s", qUtf8Printable(thrown));
        }
    }
    if (service != nullptr) {
        connect(
            service, &IService::signalSendShowMessage, this,
            [mailbox = m_mailbox](const Reply &reply) { mailbox->post(reply); }, Qt::DirectConnection);
    }
    return ServicePtr(service, ServiceReleaser{m_plugin});
}

} // namespace devhost
