// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testplugin.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <stdexcept>
#include <thread>

namespace {

class TestService : public IService
{
public:
    explicit TestService(TestPlugin &plugin) : m_plugin(plugin) {}

    QString serviceName() override { return QStringLiteral("test"); }
    ServicePriority servicePriority() override { return 1; }
    bool canHandle(const QString &name) override { return name == serviceName(); }

    IRet service(const QString &semantic) override
    {
        const QJsonObject root = QJsonDocument::fromJson(semantic.toUtf8()).object();
        if (!root.contains(QLatin1String("intent"))) {
            return -100;
        }
        const QJsonObject intent = root.value(QLatin1String("intent"))
                                       .toObject()
                                       .value(QLatin1String("semantic"))
                                       .toArray()
                                       .at(0)
                                       .toObject();
        // A sentence's intent is not under the test's control, so the environment may override it.
        m_name = qEnvironmentVariable("TESTPLUGIN_REPLIES", intent.value(QLatin1String("intent")).toString());
        m_slot = intent.value(QLatin1String("slots"))
                     .toArray()
                     .at(0)
                     .toObject()
                     .value(QLatin1String("value"))
                     .toString();
        ++m_uses;
        qDebug("service %s on %s thread", qUtf8Printable(m_name),
               QThread::currentThread() == m_plugin.thread() ? "the GUI" : "another");
        if (m_name == QLatin1String("SLOW")) {
            QThread::msleep(m_slot.toULong());
        }
        for (int i = 0; m_name == QLatin1String("WAIT") && !QFile::exists(m_slot) && i < 20000; ++i) {
            QThread::msleep(1);
        }
        if (m_name == QLatin1String("THROW")) {
            throw std::runtime_error("thrown on purpose");
        }
        return 0;
    }

    Reply *getServiceReply() override
    {
        if (m_name == QLatin1String("THROWREPLY")) {
            throw std::runtime_error("thrown in the reply");
        }
        if (m_name == QLatin1String("NOREPLY")) {
            return nullptr;
        }
        m_reply = Reply(0, m_slot.isEmpty() ? QStringLiteral("use %1").arg(m_uses) : m_slot, Reply::Texts);
        if (m_name == QLatin1String("ASKPASSWORD")) {
            m_reply = Reply(-16014, QStringLiteral("请输入密码:"), Reply::Texts);
        }
        if (m_name == QLatin1String("CARD")) {
            attachCard();
        }
        if (m_name == QLatin1String("LATE")) {
            std::thread([answer = m_plugin.answerer()] {
                answer(Reply(0, QStringLiteral("later"), Reply::Texts));
            }).detach();
        }
        return &m_reply;
    }

private:
    void attachCard()
    {
        auto *card = new QWidget;
        auto *layout = new QVBoxLayout(card);
        auto *label = new QLabel(QStringLiteral("一张卡片"), card);
        auto *button = new QPushButton(QStringLiteral("按我"), card);
        layout->addWidget(label);
        layout->addWidget(button);
        QObject::connect(button, &QPushButton::clicked, card, [plugin = &m_plugin, card] {
            auto *more = new QLabel(QStringLiteral("更多"), card);
            more->setMinimumHeight(200);
            card->layout()->addWidget(more);
            plugin->answerLater(Reply(0, QStringLiteral("按过了"), Reply::Texts));
        });
        m_reply.widget = card;
        m_reply.type |= Reply::Card;
    }

    TestPlugin &m_plugin;
    Reply m_reply;
    QString m_name;
    QString m_slot;
    int m_uses = 0;
};

} // namespace

int TestPlugin::init()
{
    const QByteArray how = qgetenv("TESTPLUGIN_INIT");
    if (how == "throw") {
        throw std::runtime_error("no start");
    }
    return how == "fail" ? -3 : how == "partly" ? 1 : 0;
}

QStringList TestPlugin::getSupportService()
{
    return qgetenv("TESTPLUGIN_SERVICES") == "none" ? QStringList() : QStringList{QStringLiteral("test")};
}

IService *TestPlugin::createService(const QString &name)
{
    return name == QLatin1String("test") ? new TestService(*this) : nullptr;
}

void TestPlugin::releaseService(IService *service)
{
    delete service;
}

void TestPlugin::answerLater(const Reply &reply)
{
    answerer()(reply);
}

std::function<void(const Reply &)> TestPlugin::answerer()
{
    return [this, handle = messageHandle](const Reply &reply) {
        if (handle) {
            handle(this, reply);
        }
    };
}
