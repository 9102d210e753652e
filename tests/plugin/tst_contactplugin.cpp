// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactplugin.h"

#include "conferencecardinterface.h"
#include "configmanager.h"
#include "configurationfile.h"
#include "logcapture.h"
#include "redirectedfile.h"
#include "testcolumns.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QWidget>

#include <sys/stat.h>

#include <memory>
#include <stdexcept>
#include <thread>

namespace {

const char ConfigurationPath[] = "/etc/xdg/kelvane-speakmate-plugins/contact-plugin.json";

QString contact()
{
    return QStringLiteral("contact");
}

/// A service that the plugin did not create; counts its deletions.
class ForeignService : public IService
{
public:
    explicit ForeignService(int *deletions) : m_deletions(deletions) {}
    ~ForeignService() override { ++*m_deletions; }

    QString serviceName() override { return contact(); }
    ServicePriority servicePriority() override { return 0; }
    bool canHandle(const QString & /*name*/) override { return true; }
    IRet service(const QString & /*semantic*/) override { return 0; }
    Reply *getServiceReply() override { return nullptr; }

private:
    int *m_deletions;
};

/// A reply with an empty card, attached by the dispatcher. With several plugins in the process, each attaches
/// its own.
Reply announcedCard()
{
    Reply reply;
    ConferenceCardInterface::instance()->noticeSentActionSignals(7, QVariant(), &reply);
    return reply;
}

/// Emits the card's reply signal, as its buttons do.
bool emitReply(QObject *card, const Reply &reply)
{
    return QMetaObject::invokeMethod(card, "signalSendShowMessgae", Qt::DirectConnection,
                                     Q_ARG(Reply, reply));
}

bool emitFromCard(const Reply &reply)
{
    const std::unique_ptr<QWidget> card(announcedCard().widget);
    return card != nullptr && emitReply(card.get(), reply);
}

} // namespace

class TestContactPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersOneService();
    void answersTheHostsDefaults();
    void createsServicesByTheirExactName_data();
    void createsServicesByTheirExactName();
    void servicesAreDistinctAndComplete();
    void releaseDeletesOnlyItsOwnLiveServices();
    void initReadsTheConfiguration();
    void initFailsWithoutAReadableConfiguration_data();
    void initFailsWithoutAReadableConfiguration();
    void initFailsWithAnythingButASmallFile_data();
    void initFailsWithAnythingButASmallFile();
    void repliesReachTheHandle();
    void repliesBeforeTheHandleAreDropped();
    void aNewHandleReplacesTheFormer();
    void repliesFromAnotherThreadAreQueued();
    void exceptionOfTheHandleStaysInside();
    void replyIsARegisteredMetatype();
    void uninitDoesNothing();

private:
    QTemporaryDir m_folder;
};

void TestContactPlugin::offersOneService()
{
    ContactPlugin plugin;
    QCOMPARE(plugin.getSupportService(), QStringList{contact()});
}

void TestContactPlugin::answersTheHostsDefaults()
{
    ContactPlugin plugin;
    QVERIFY(plugin.needRunInDifferentThread());
    QVERIFY(plugin.isAutoDetectSession());
    QCOMPARE(plugin.getPluginProtocolVersion(), 1);
}

void TestContactPlugin::createsServicesByTheirExactName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("capital C") << QStringLiteral("Contact");
    QTest::newRow("all capitals") << QStringLiteral("CONTACT");
    QTest::newRow("nothing") << QString();
    QTest::newRow("another service") << QStringLiteral("weather");
    QTest::newRow("a blank behind it") << QStringLiteral("contact ");
}

void TestContactPlugin::createsServicesByTheirExactName()
{
    QFETCH(const QString, name);
    ContactPlugin plugin;
    QVERIFY(plugin.createService(name) == nullptr);
}

void TestContactPlugin::servicesAreDistinctAndComplete()
{
    ContactPlugin plugin;
    IService *first = plugin.createService(contact());
    IService *second = plugin.createService(contact());
    QVERIFY(first != nullptr);
    QVERIFY(second != nullptr);
    QVERIFY(first != second);
    QCOMPARE(first->serviceName(), contact());
    QCOMPARE(first->servicePriority(), 10);
    QVERIFY(first->canHandle(contact()));
    plugin.releaseService(first);
    plugin.releaseService(second);
}

void TestContactPlugin::releaseDeletesOnlyItsOwnLiveServices()
{
    ContactPlugin plugin;
    ContactPlugin other;
    IService *service = plugin.createService(contact());
    const QPointer<QObject> watched(service);
    int deletions = 0;
    ForeignService foreign(&deletions);

    plugin.releaseService(nullptr);
    plugin.releaseService(&foreign);
    QCOMPARE(deletions, 0);
    other.releaseService(service);
    QVERIFY(!watched.isNull());

    plugin.releaseService(service);
    QVERIFY(watched.isNull());
    plugin.releaseService(service);
    plugin.releaseService(nullptr);
    QCOMPARE(deletions, 0);
}

void TestContactPlugin::initReadsTheConfiguration()
{
    const ConfigurationFile file(R"({"Contact":{"TimeOut":"1234","MaxTimeOut":"2345"}})");
    const LogCapture log;
    const RedirectedFile redirected(ConfigurationPath, file.path());
    ContactPlugin plugin;
    QCOMPARE(plugin.init(), 0);
    QCOMPARE(redirected.opened(), 1);
    QString value;
    QVERIFY(ConfigManager::instance()->query(QStringLiteral("/Contact/TimeOut"), value));
    QCOMPARE(value, QStringLiteral("1234"));
    QCOMPARE(log.texts(QtInfoMsg).size(), 1);
}

void TestContactPlugin::initFailsWithoutAReadableConfiguration_data()
{
    addColumns<QByteArray, QString>({"content", "critical"});
    const QString notAnObject = QStringLiteral("config root must be a object.");
    QTest::newRow("missing") << QByteArray() << notAnObject;
    QTest::newRow("not JSON") << QByteArray("TimeOut=1") << notAnObject;
    QTest::newRow("an array") << QByteArray("[]") << notAnObject;
    QTest::newRow("a number in it") << QByteArray(R"({"Contact":{"TimeOut":30}})")
                                    << QStringLiteral("This config can only contain string&dict");
}

void TestContactPlugin::initFailsWithoutAReadableConfiguration()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, critical);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("any.json")));
    if (!content.isNull()) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
    }
    const LogCapture log(LogCapture::Unexpected::Passes);
    const RedirectedFile redirected(ConfigurationPath, file.fileName().toUtf8());
    ContactPlugin plugin;
    QCOMPARE(plugin.init(), -3);
    QCOMPARE(redirected.opened(), 1);
    QVERIFY(log.contains(QtCriticalMsg, critical));
}

void TestContactPlugin::initFailsWithAnythingButASmallFile_data()
{
    QTest::addColumn<QByteArray>("path");
    const QByteArray fifo = QFile::encodeName(m_folder.filePath(QStringLiteral("fifo")));
    QVERIFY(::mkfifo(fifo.constData(), 0600) == 0);
    QFile large(m_folder.filePath(QStringLiteral("large.json")));
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.write(QByteArray("{}").leftJustified(2 * 1024 * 1024)) > 0);
    QTest::newRow("a FIFO that nobody writes to") << fifo;
    QTest::newRow("a device that never ends") << QByteArray("/dev/zero");
    QTest::newRow("a folder") << QFile::encodeName(m_folder.path());
    QTest::newRow("2 MB") << QFile::encodeName(large.fileName());
}

void TestContactPlugin::initFailsWithAnythingButASmallFile()
{
    QFETCH(const QByteArray, path);
    const LogCapture log(LogCapture::Unexpected::Passes);
    const RedirectedFile redirected(ConfigurationPath, path);
    ContactPlugin plugin;
    QCOMPARE(plugin.init(), -3);
    QCOMPARE(redirected.opened(), 1);
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
    QVERIFY(log.contains(QtCriticalMsg, QStringLiteral("config root must be a object.")));
}

void TestContactPlugin::repliesReachTheHandle()
{
    ContactPlugin plugin;
    IServicePlugin *sender = nullptr;
    Reply received;
    plugin.setMessageHandle([&](IServicePlugin *from, Reply reply) {
        sender = from;
        received = reply;
    });
    QVERIFY(emitFromCard(Reply(-16007, QStringLiteral("晚了。"), 3)));
    QCOMPARE(sender, static_cast<IServicePlugin *>(&plugin));
    QCOMPARE(received.code, QVariant(-16007));
    QCOMPARE(received.displayText, QVariant(QStringLiteral("晚了。")));
    QCOMPARE(received.speechText, received.displayText);
    QCOMPARE(received.type, 3);
    QVERIFY(received.endOfSession);
}

void TestContactPlugin::repliesBeforeTheHandleAreDropped()
{
    ContactPlugin plugin;
    QVERIFY(emitFromCard(Reply(0, QStringLiteral("too early"), 3)));
    int calls = 0;
    plugin.setMessageHandle([&calls](IServicePlugin *, const Reply &) { ++calls; });
    QCoreApplication::processEvents();
    QCOMPARE(calls, 0);
    QVERIFY(emitFromCard(Reply(0, QStringLiteral("in time"), 3)));
    QCOMPARE(calls, 1);
}

void TestContactPlugin::aNewHandleReplacesTheFormer()
{
    ContactPlugin plugin;
    int former = 0;
    int latter = 0;
    const auto owned = std::make_shared<int>(0);
    plugin.setMessageHandle([&former, owned](IServicePlugin *, const Reply &) { ++former; });
    QCOMPARE(owned.use_count(), 2L);
    plugin.setMessageHandle([&latter](IServicePlugin *, const Reply &) { ++latter; });
    QCOMPARE(owned.use_count(), 1L);
    QVERIFY(emitFromCard(Reply(0, QString(), 3)));
    QCOMPARE(former, 0);
    QCOMPARE(latter, 1);
    plugin.setMessageHandle({});
    QVERIFY(emitFromCard(Reply(0, QString(), 3)));
    QCOMPARE(latter, 1);
}

void TestContactPlugin::repliesFromAnotherThreadAreQueued()
{
    ContactPlugin plugin;
    QVector<Qt::HANDLE> threads;
    QStringList texts;
    plugin.setMessageHandle([&](IServicePlugin *, const Reply &reply) {
        threads.append(QThread::currentThreadId());
        texts.append(reply.displayText.toString());
    });
    const LogCapture log;
    Reply reply = announcedCard();
    QVERIFY(reply.widget != nullptr);
    std::thread worker([&reply] {
        emitReply(reply.widget, Reply(0, QStringLiteral("one"), 3));
        emitReply(reply.widget, Reply(0, QStringLiteral("two"), 3));
    });
    worker.join();
    QVERIFY(texts.isEmpty());
    QTRY_COMPARE(texts, (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    QCOMPARE(threads, (QVector<Qt::HANDLE>{QThread::currentThreadId(), QThread::currentThreadId()}));
    delete reply.widget;
}

void TestContactPlugin::exceptionOfTheHandleStaysInside()
{
    ContactPlugin plugin;
    plugin.setMessageHandle(
        [](IServicePlugin *, const Reply &) { throw std::runtime_error("host in trouble"); });
    LogCapture log;
    log.expect(QtCriticalMsg, QStringLiteral("The host's message handle threw: host in trouble"));
    QVERIFY(emitFromCard(Reply(0, QString(), 3)));
    plugin.setMessageHandle([](IServicePlugin *, const Reply &) { throw 5; });
    log.expect(QtCriticalMsg, QStringLiteral("The host's message handle threw"));
    QVERIFY(emitFromCard(Reply(0, QString(), 3)));
}

void TestContactPlugin::replyIsARegisteredMetatype()
{
    const ContactPlugin plugin;
    const int type = QMetaType::type("Reply");
    QVERIFY(type != QMetaType::UnknownType);
    QCOMPARE(type, qMetaTypeId<Reply>());
    const QVariant carried = QVariant::fromValue(Reply(7, QStringLiteral("x"), 11));
    QCOMPARE(carried.value<Reply>().code, QVariant(7));
}

void TestContactPlugin::uninitDoesNothing()
{
    ContactPlugin plugin;
    IService *service = plugin.createService(contact());
    const QPointer<QObject> watched(service);
    plugin.uninit();
    QVERIFY(!watched.isNull());
    plugin.releaseService(service);
    QVERIFY(watched.isNull());
}

QTEST_MAIN(TestContactPlugin)

#include "tst_contactplugin.moc"
