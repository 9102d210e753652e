// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "loadedplugintest.h"

#include <QPointer>
#include <QThread>

#include <atomic>
#include <vector>

namespace {

/// Asks for conferences with two in the answer; returns the reply, which has a card.
Reply *askForTwoConferences(IService *service)
{
    ScriptedAbility::instance().enqueue(
        0, quoted("{'ret':'OK','list':[{'confId':'a','title':'甲'},{'confId':'b','title':'乙'}]}"));
    service->service(
        SemanticText::of("QUERY_CONFERENCE", QByteArray("[").append(Tomorrow).append("]").constData()));
    return service->getServiceReply();
}

bool emitFromCard(QObject *card, const Reply &reply)
{
    return QMetaObject::invokeMethod(card, "signalSendShowMessgae", Qt::DirectConnection,
                                     Q_ARG(Reply, reply));
}

} // namespace

/// Late replies of cards, services on many threads, and unloading.
class TestLoadedPluginLife : public LoadedPluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void lateRepliesOfACardReachTheHost();
    void replyOfACardBeforeTheHandleIsDropped();
    void aReplyFromAnotherThreadIsQueued();
    void servicesComeAndGoOnManyThreads();
    void loadsAndUnloadsAHundredTimes();
};

void TestLoadedPluginLife::lateRepliesOfACardReachTheHost()
{
    IService *service = m_plugin->createService(contact());
    const std::unique_ptr<QWidget> card(askForTwoConferences(service)->widget);
    QVERIFY(card != nullptr);
    IServicePlugin *sender = nullptr;
    QStringList texts;
    m_plugin->setMessageHandle([&](IServicePlugin *plugin, const Reply &reply) {
        sender = plugin;
        texts.append(reply.displayText.toString());
    });
    m_plugin->releaseService(service);
    QVERIFY(emitFromCard(card.get(), Reply(0, QStringLiteral("改好了。"), 3)));
    QCOMPARE(texts, QStringList{QStringLiteral("改好了。")});
    QCOMPARE(sender, m_plugin);
    m_plugin->setMessageHandle({});
}

void TestLoadedPluginLife::replyOfACardBeforeTheHandleIsDropped()
{
    IService *service = m_plugin->createService(contact());
    const std::unique_ptr<QWidget> card(askForTwoConferences(service)->widget);
    QVERIFY(card != nullptr);
    QVERIFY(emitFromCard(card.get(), Reply(0, QStringLiteral("nobody hears it"), 3)));
    int calls = 0;
    m_plugin->setMessageHandle([&calls](IServicePlugin *, const Reply &) { ++calls; });
    QCoreApplication::processEvents();
    QCOMPARE(calls, 0);
    m_plugin->setMessageHandle({});
    m_plugin->releaseService(service);
}

void TestLoadedPluginLife::aReplyFromAnotherThreadIsQueued()
{
    IService *service = m_plugin->createService(contact());
    const std::unique_ptr<QWidget> card(askForTwoConferences(service)->widget);
    QVERIFY(card != nullptr);
    QVector<Qt::HANDLE> threads;
    m_plugin->setMessageHandle(
        [&threads](IServicePlugin *, const Reply &) { threads.append(QThread::currentThreadId()); });
    std::thread worker([&card] { emitFromCard(card.get(), Reply(0, QStringLiteral("from afar"), 3)); });
    worker.join();
    QVERIFY(threads.isEmpty());
    QTRY_COMPARE(threads, QVector<Qt::HANDLE>{QThread::currentThreadId()});
    m_plugin->setMessageHandle({});
    m_plugin->releaseService(service);
}

void TestLoadedPluginLife::servicesComeAndGoOnManyThreads()
{
    constexpr int threadCount = 4;
    constexpr int rounds = 500;
    std::atomic<int> made{0};
    std::atomic<int> started{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([this, &made, &started] {
            // Start together: otherwise a thread could finish before the next has started.
            ++started;
            while (started.load() < threadCount) {
                std::this_thread::yield();
            }
            for (int round = 0; round < rounds; ++round) {
                IService *first = m_plugin->createService(contact());
                IService *second = m_plugin->createService(contact());
                m_plugin->releaseService(nullptr);
                if (first != nullptr && second != nullptr && first != second &&
                    first->serviceName() == contact()) {
                    ++made;
                }
                m_plugin->releaseService(first);
                m_plugin->releaseService(second);
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(made.load(), threadCount * rounds);
}

/// Comes last, because it unloads the plugin that the others use.
void TestLoadedPluginLife::loadsAndUnloadsAHundredTimes()
{
    for (int round = 0; round < 100; ++round) {
        const QPointer<QObject> instance(m_loader.instance());
        m_plugin = qobject_cast<IServicePlugin *>(instance.data());
        QVERIFY(m_plugin != nullptr);
        IService *service = m_plugin->createService(contact());
        const std::unique_ptr<QWidget> card(askForTwoConferences(service)->widget);
        QVERIFY(card != nullptr);
        // Unloaded plugins build no more cards.
        QCOMPARE(cardsAlive(), 1);
        m_plugin->releaseService(service);
        m_plugin->uninit();
        QVERIFY(m_loader.unload());
        QVERIFY(instance.isNull());
        // The plugin is unloaded, but the host may still show the card.
        card->show();
        QVERIFY(emitFromCard(card.get(), Reply(0, QString(), 3)));
        ScriptedAbility::instance().reset();
    }
}

QTEST_MAIN(TestLoadedPluginLife)
#include "tst_loadedpluginlife.moc"
