// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactplugin.h"

#include "configmanager.h"
#include "contactintentfactory.h"
#include "contactreplywidget.h"
#include "contactservice.h"
#include "defaultlog.h"

#include <QMutexLocker>

#include <exception>
#include <utility>

namespace {

constexpr int Initialised = 0;
constexpr int ConfigurationUnreadable = -3;
constexpr ServicePriority ContactPriority = 10;

} // namespace

ContactPlugin::ContactPlugin(QObject *parent)
    : QObject(parent)
    , m_replyWidget(new ContactReplyWidget(nullptr))
{
    qRegisterMetaType<Reply>();
    connect(m_replyWidget, &ContactReplyWidget::signaleSendShowMessage, this,
            &ContactPlugin::slotMessageHandle);
}

ContactPlugin::~ContactPlugin()
{
    // Keep the dispatcher for cards that are still shown, but stop it from building new ones: the next load
    // creates another.
    m_replyWidget->stopListening();
}

int ContactPlugin::init()
{
    const bool loaded = ConfigManager::instance()->init(
        QStringLiteral("/etc/xdg/kelvane-speakmate-plugins/contact-plugin.json"));
    return loaded ? Initialised : ConfigurationUnreadable;
}

void ContactPlugin::uninit() {}

QStringList ContactPlugin::getSupportService()
{
    return {QStringLiteral("contact")};
}

IService *ContactPlugin::createService(const QString &name)
{
    if (!getSupportService().contains(name)) {
        return nullptr;
    }
    const QMutexLocker lock(&m_mutex);
    IService *service = new ContactService(name, ContactIntentFactory::instance(), ContactPriority);
    m_lastService = service;
    m_services.insert(service);
    return service;
}

void ContactPlugin::releaseService(IService *service)
{
    const QMutexLocker lock(&m_mutex);
    if (!m_services.contains(service)) {
        return;
    }
    delete service;
    m_services.remove(service);
    m_lastService = nullptr;
}

void ContactPlugin::slotMessageHandle(Reply reply)
{
    if (!messageHandle) {
        return;
    }
    try {
        messageHandle(this, std::move(reply));
    } catch (const std::exception &error) {
        qCCritical(defaultLog) << "The host's message handle threw:" << error.what();
    } catch (...) {
        qCCritical(defaultLog) << "The host's message handle threw";
    }
}
