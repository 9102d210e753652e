// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "busclient.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QtTest>

using namespace devhost;

namespace {

constexpr int LongMsecs = 60000;
const QString Silent = QStringLiteral("org.example.Silent");

/// Never answers in time: the test doesn't run its event loop meanwhile.
class SilentObject : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    Q_SCRIPTABLE void wait() {}
};

/// Sends one call that stays unanswered.
class Caller : public BusClient
{
    Q_OBJECT

public:
    Caller() : BusClient(QStringLiteral("caller")) {}

    void start() override
    {
        connectToBus(AsLongAsItTakes);
        call(QDBusMessage::createMethodCall(Silent, QStringLiteral("/"), QString(), QStringLiteral("wait")),
             LongMsecs);
        Q_EMIT called(bus().name(), bus().baseService());
    }

Q_SIGNALS:
    void called(const QString &connection, const QString &address);
};

bool isOnTheBus(const QString &address)
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(address);
}

} // namespace

class TestBusClient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unfinishedCallKeepsItsConnection();
};

/// A closing connection deletes its unfinished calls on its own thread while their watchers may be releasing
/// them. Closing the desk at the wrong moment used to corrupt the heap.
void TestBusClient::unfinishedCallKeepsItsConnection()
{
    SilentObject silent;
    QVERIFY(QDBusConnection::sessionBus().registerObject(QStringLiteral("/"), &silent,
                                                         QDBusConnection::ExportScriptableSlots));
    QVERIFY(QDBusConnection::sessionBus().registerService(Silent));

    auto *caller = new Caller;
    QString connection;
    QString address;
    QSemaphore hasCalled;
    const auto take = [&](const QString &name, const QString &uniqueName) {
        connection = name;
        address = uniqueName;
        hasCalled.release();
    };
    connect(caller, &Caller::called, caller, take, Qt::DirectConnection);
    {
        BusThread thread(caller);
        thread.start();
        QVERIFY(hasCalled.tryAcquire(1, LongMsecs));
        QVERIFY(isOnTheBus(address));

        QDBusConnection::disconnectFromBus(connection);
        QTest::qSleep(200);
        QVERIFY(isOnTheBus(address));
    }
    QTRY_VERIFY(!isOnTheBus(address));
}

QTEST_GUILESS_MAIN(TestBusClient)

#include "tst_busclient.moc"
