// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "busaddress.h"
#include "connectionguard.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <limits>
#include <memory>
#include <thread>

#include <sys/socket.h>
#include <unistd.h>

namespace {

/// A socket that is closed at the end of its scope.
class Socket
{
public:
    explicit Socket(int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
        : m_descriptor(descriptor)
    {
    }
    ~Socket() { close(m_descriptor); }
    Q_DISABLE_COPY(Socket)

    int descriptor() const { return m_descriptor; }
    /// Whether it has been shut down. Reads as end of file then; no test writes to a socket.
    bool isShutDown() const
    {
        char byte = 0;
        return recv(m_descriptor, &byte, 1, MSG_DONTWAIT) == 0;
    }

private:
    int m_descriptor;
};

/// A listening socket that accepts connections and stays silent.
class Listener
{
public:
    explicit Listener(const QString &path) : m_path(path.toLocal8Bit())
    {
        sockaddr_un name;
        const socklen_t length = BusAddress::fill(name, m_path);
        const bool listens =
            bind(m_socket.descriptor(), reinterpret_cast<const sockaddr *>(&name), length) == 0 &&
            listen(m_socket.descriptor(), 10) == 0;
        if (!listens) {
            qFatal("Cannot listen at %s", m_path.constData());
        }
    }
    QByteArray address() const { return "unix:path=" + m_path; }
    std::unique_ptr<Socket> connected() const
    {
        sockaddr_un name;
        const socklen_t length = BusAddress::fill(name, m_path);
        auto socket = std::make_unique<Socket>();
        if (connect(socket->descriptor(), reinterpret_cast<const sockaddr *>(&name), length) != 0) {
            qFatal("Nobody can connect to %s", m_path.constData());
        }
        return socket;
    }

private:
    QByteArray m_path;
    Socket m_socket;
};

} // namespace

/// Which connections are shut down when a bus falls silent while a client connects.
class TestConnectionGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatWasConnectedSinceIsShutDown();
    void nothingIsShutDownInTime();
    void itsEndIsNotWaitedFor();

private:
    QTemporaryDir m_folder;
    Listener m_bus{m_folder.filePath(QStringLiteral("bus"))};
    Listener m_other{m_folder.filePath(QStringLiteral("other"))};
};

void TestConnectionGuard::onlyWhatWasConnectedSinceIsShutDown()
{
    std::atomic<bool> hasTime{true};
    const std::unique_ptr<Socket> before = m_bus.connected();
    const ConnectionGuard guard(m_bus.address(), [&hasTime] { return hasTime.load(); });
    const std::unique_ptr<Socket> since = m_bus.connected();
    const std::unique_ptr<Socket> elsewhere = m_other.connected();
    QVERIFY(!since->isShutDown());
    hasTime = false;
    QTRY_VERIFY(since->isShutDown());
    const std::unique_ptr<Socket> late = m_bus.connected();
    QTRY_VERIFY(late->isShutDown());
    QVERIFY(!before->isShutDown());
    QVERIFY(!elsewhere->isShutDown());
}

void TestConnectionGuard::nothingIsShutDownInTime()
{
    std::unique_ptr<Socket> socket;
    {
        std::atomic<int> asked{0};
        const ConnectionGuard guard(m_bus.address(), [&asked] { return ++asked > 0; });
        socket = m_bus.connected();
        QTRY_VERIFY(asked > 3);
    }
    QVERIFY(!socket->isShutDown());
}

void TestConnectionGuard::itsEndIsNotWaitedFor()
{
    // The quickest of many: a busy machine may delay some, but not all.
    constexpr int rounds = 20;
    qint64 quickest = std::numeric_limits<qint64>::max();
    for (int round = 0; round < rounds; ++round) {
        std::atomic<int> asked{0};
        QElapsedTimer timer;
        {
            const ConnectionGuard guard(m_bus.address(), [&asked] { return ++asked > 0; });
            while (asked < 2) {
                std::this_thread::yield();
            }
            timer.start();
        }
        quickest = qMin(quickest, timer.nsecsElapsed() / 1000);
    }
    QVERIFY2(quickest < 3000, qPrintable(QStringLiteral("%1 microseconds").arg(quickest)));
}

QTEST_GUILESS_MAIN(TestConnectionGuard)
#include "tst_connectionguard.moc"
