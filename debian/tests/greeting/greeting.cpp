// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <speakmate/iserviceplugin.h>

/// The smallest plugin: one service that greets, whatever was said.
struct Greeting : IService
{
    Reply reply{0, QStringLiteral("Hello."), Reply::Texts};
    QString serviceName() override { return QStringLiteral("greeting"); }
    ServicePriority servicePriority() override { return 0; }
    bool canHandle(const QString &) override { return true; }
    IRet service(const QString &) override { return 0; }
    Reply *getServiceReply() override { return &reply; }
};

class GreetingPlugin : public QObject, public IServicePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IServicePlugin_iid)
    Q_INTERFACES(IServicePlugin)

public:
    int init() override { return 0; }
    void uninit() override {}
    QStringList getSupportService() override { return {QStringLiteral("greeting")}; }
    IService *createService(const QString &) override { return new Greeting; }
    void releaseService(IService *service) override { delete service; }
};

#include "greeting.moc"
