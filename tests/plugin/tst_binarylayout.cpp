// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "documented/documentedinterfaces.h"
#include "untouchedreply.h"

#include <QApplication>
#include <QDateTime>
#include <QLibrary>
#include <QPluginLoader>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <memory>

/**
 * The plugin with a host and an ability library built from the documentation alone: every function is called
 * through its documented vtable slot.
 */
class TestBinaryLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pluginFunctionsStandInOrder();
    void serviceFunctionsStandInOrder();
    void abilityFunctionsStandInOrder();
    void messageHandleTakesTheReplyByValue();
    void pluginMembersStandInOrder();
    void dispatcherMembersStandInOrder();

private:
    QObject *m_object = nullptr;
    Documented::ServicePlugin *m_plugin = nullptr;
    QStringList *m_abilityCalls = nullptr;
};

void TestBinaryLayout::initTestCase()
{
    QPluginLoader loader(QStringLiteral(CONTACT_PLUGIN_FILE));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    m_object = loader.instance();
    m_plugin =
        static_cast<Documented::ServicePlugin *>(m_object->qt_metacast("com.kelvane.sonvaro.speakmate.3"));
    QVERIFY(m_plugin != nullptr);

    QLibrary ability(QStringLiteral("libkelvane-system-ability.so"));
    const auto entry = reinterpret_cast<QStringList *(*)()>(ability.resolve("documentedAbilityCalls"));
    QVERIFY2(entry != nullptr, "the plugin was loaded with another ability library");
    m_abilityCalls = entry();
}

void TestBinaryLayout::pluginFunctionsStandInOrder()
{
    m_plugin->uninit();
    QCOMPARE(m_plugin->getSupportService(), QStringList{QStringLiteral("contact")});
    QVERIFY(m_plugin->createService(QStringLiteral("Contact")) == nullptr);
    m_plugin->releaseService(nullptr);
    QVERIFY(m_plugin->needRunInDifferentThread());
    QVERIFY(m_plugin->isAutoDetectSession());
    QCOMPARE(m_plugin->getPluginProtocolVersion(), 1);
    const int initialised = m_plugin->init();
    QVERIFY(initialised == 0 || initialised == -3);

    // The members follow the bases in the documented order; the handle is the interface's only member.
    int calls = 0;
    m_plugin->setMessageHandle([&calls](Documented::ServicePlugin *, const Documented::Reply &) { ++calls; });
    QVERIFY(m_plugin->messageHandle != nullptr);
    m_plugin->messageHandle(m_plugin, Documented::Reply());
    QCOMPARE(calls, 1);
    m_plugin->setMessageHandle({});
    QVERIFY(m_plugin->messageHandle == nullptr);
}

void TestBinaryLayout::serviceFunctionsStandInOrder()
{
    Documented::Service *service = m_plugin->createService(QStringLiteral("contact"));
    QVERIFY(service != nullptr);
    QVERIFY(service->inherits("IService"));
    QCOMPARE(service->serviceName(), QStringLiteral("contact"));
    QCOMPARE(service->servicePriority(), 10);
    QVERIFY(service->canHandle(QStringLiteral("contact")));
    QVERIFY(!service->canHandle(QStringLiteral("other")));

    QCOMPARE(service->service(QStringLiteral("{}")), -100);
    const Documented::Reply *reply = service->getServiceReply();
    compareUntouched(*reply);

    QCOMPARE(
        service->service(QStringLiteral("{\"intent\":{\"semantic\":[],\"shouldEndSession\":false,"
                                        "\"answer\":{\"text\":\"shown\"},"
                                        "\"voice_answer\":[{\"type\":\"TTS\",\"content\":\"spoken\"}]}}")),
        0);
    reply = service->getServiceReply();
    QCOMPARE(reply->code, QVariant(0));
    QCOMPARE(reply->displayText, QVariant(QStringLiteral("shown")));
    QCOMPARE(reply->speechText, QVariant(QStringLiteral("spoken")));
    QCOMPARE(reply->type, 3);

    const QSignalSpy deleted(service, &QObject::destroyed);
    m_plugin->releaseService(service);
    QCOMPARE(deleted.count(), 1);
}

void TestBinaryLayout::abilityFunctionsStandInOrder()
{
    m_abilityCalls->clear();
    Documented::Service *service = m_plugin->createService(QStringLiteral("contact"));
    QCOMPARE(service->service(QStringLiteral("{\"intent\":{\"semantic\":[{\"intent\":\"ADD_BUDDY\","
                                             "\"slots\":[{\"name\":\"account\",\"value\":\"zhang\"}]}]}}")),
             0);
    QCOMPARE(*m_abilityCalls, (QStringList{QStringLiteral("timeout"),
                                           QStringLiteral("request Add Friends {\"userId\":\"zhang\"}"),
                                           QStringLiteral("deleted")}));
    QCOMPARE(service->getServiceReply()->displayText.toString(), QStringLiteral("已成功发送好友申请。"));
    m_plugin->releaseService(service);
}

void TestBinaryLayout::messageHandleTakesTheReplyByValue()
{
    Documented::ServicePlugin *sender = nullptr;
    Documented::Reply received{};
    m_plugin->setMessageHandle([&](Documented::ServicePlugin *plugin, const Documented::Reply &reply) {
        sender = plugin;
        received = reply;
    });
    int card = 0;
    Documented::Reply reply{7, QStringLiteral("shown"), QStringLiteral("spoken"), &card, 11, true};
    QVERIFY(QMetaObject::invokeMethod(m_object, "slotMessageHandle", Qt::DirectConnection,
                                      QGenericArgument("Reply", &reply)));
    m_plugin->setMessageHandle({});
    QCOMPARE(sender, m_plugin);
    QCOMPARE(received.code, QVariant(7));
    QCOMPARE(received.displayText, QVariant(QStringLiteral("shown")));
    QCOMPARE(received.speechText, QVariant(QStringLiteral("spoken")));
    QCOMPARE(received.widget, static_cast<void *>(&card));
    QCOMPARE(received.type, 11);
    QVERIFY(received.endOfSession);
}

void TestBinaryLayout::pluginMembersStandInOrder()
{
    const auto *plugin = reinterpret_cast<const Documented::Plugin *>(m_object);
    QCOMPARE(static_cast<const void *>(static_cast<const Documented::ServicePlugin *>(plugin)),
             static_cast<const void *>(m_plugin));
    QCOMPARE(plugin->lastService, nullptr);
    Documented::Service *service = m_plugin->createService(QStringLiteral("contact"));
    QCOMPARE(plugin->lastService, service);
    m_plugin->releaseService(service);
    QCOMPARE(plugin->lastService, nullptr);
    QCOMPARE(plugin->dispatcher->metaObject()->className(), "ContactReplyWidget");
}

void TestBinaryLayout::dispatcherMembersStandInOrder()
{
    const Documented::Dispatcher *dispatcher =
        reinterpret_cast<const Documented::Plugin *>(m_object)->dispatcher;
    QCOMPARE(dispatcher->interface->metaObject()->className(), "ConferenceCardInterface");
    QCOMPARE(dispatcher->card, nullptr);
    QVERIFY(!dispatcher->isSchedule);
    QCOMPARE(dispatcher->scheduleTimeMsecs, qint64(0));
    QCOMPARE(dispatcher->canInviteNum, 0);

    Documented::Service *service = m_plugin->createService(QStringLiteral("contact"));
    const QDateTime start(QDate::currentDate().addDays(1), QTime(9, 30));
    const QString semantic =
        QStringLiteral(R"({"intent":{"semantic":[{"intent":"CREATE_CONFERENCE",)"
                       R"("slots":[{"name":"datetime","value":"{\"suggestDatetime\":\"%1\"}"}]}]}})");
    QCOMPARE(service->service(semantic.arg(start.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")))), 0);
    const Documented::Reply *reply = service->getServiceReply();
    const std::unique_ptr<QWidget> card(static_cast<QWidget *>(reply->widget));
    QCOMPARE(reply->type, 11);
    QVERIFY(card != nullptr);
    QCOMPARE(dispatcher->card, static_cast<void *>(card.get()));
    QVERIFY(dispatcher->isSchedule);
    QCOMPARE(dispatcher->scheduleTimeMsecs, start.toMSecsSinceEpoch());
    QCOMPARE(dispatcher->canInviteNum, 0);
    m_plugin->releaseService(service);
}

QTEST_MAIN(TestBinaryLayout)

#include "tst_binarylayout.moc"
