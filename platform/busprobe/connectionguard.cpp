// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "connectionguard.h"

#include "busaddress.h"

#include <QByteArrayList>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds Step(10);

/// Calls @p use with the descriptor of each socket of the process and its name, "socket:[12345]".
template <typename Use>
void forEachSocket(Use use)
{
    DIR *folder = opendir("/proc/self/fd");
    if (folder == nullptr) {
        return;
    }
    while (const dirent *entry = readdir(folder)) {
        char target[64];
        const ssize_t length = readlinkat(dirfd(folder), entry->d_name, target, sizeof(target));
        const QByteArray name(target, length > 0 ? static_cast<int>(length) : 0);
        if (name.startsWith("socket:")) {
            use(std::atoi(entry->d_name), name);
        }
    }
    closedir(folder);
}

/// The address that the peer of @p socket listens on; null when it has none.
QByteArray peerOf(int socket)
{
    sockaddr_un name{};
    socklen_t length = sizeof(name);
    if (getpeername(socket, reinterpret_cast<sockaddr *>(&name), &length) != 0 ||
        name.sun_family != AF_UNIX || length <= offsetof(sockaddr_un, sun_path)) {
        return {};
    }
    const int size = static_cast<int>(length - offsetof(sockaddr_un, sun_path));
    return name.sun_path[0] == '\0' ? QByteArray(name.sun_path, size) : QByteArray(name.sun_path);
}

/// The address that the server behind @p path listens on; the path may be a link to it.
QByteArray nameBehind(const QByteArray &path)
{
    sockaddr_un name;
    const socklen_t length = BusAddress::fill(name, path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    QByteArray found;
    if (socket >= 0 && length > 0 &&
        connect(socket, reinterpret_cast<const sockaddr *>(&name), length) == 0) {
        found = peerOf(socket);
    }
    if (socket >= 0) {
        close(socket);
    }
    return found.isNull() ? path : found;
}

} // namespace

ConnectionGuard::ConnectionGuard(const QByteArray &addresses, std::function<bool()> goesOn)
    : m_addresses(addresses.isEmpty() ? BusAddress::ownBus() : addresses)
    , m_goesOn(std::move(goesOn))
{
    forEachSocket([this](int, const QByteArray &name) { m_before.insert(name); });
    m_thread = std::thread([this] { watch(); });
}

ConnectionGuard::~ConnectionGuard()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
    }
    m_end.notify_one();
    m_thread.join();
}

bool ConnectionGuard::hasEnded()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_end.wait_for(lock, Step, [this] { return m_isOver; });
}

void ConnectionGuard::watch()
{
    while (m_goesOn()) {
        if (hasEnded()) {
            return;
        }
    }
    std::set<QByteArray> buses;
    const QByteArrayList alternatives = m_addresses.split(';');
    for (const QByteArray &address : alternatives) {
        const QByteArray path = BusAddress::socketOf(address);
        if (!path.isEmpty()) {
            buses.insert(nameBehind(path));
        }
    }
    // Repeatedly: libdbus may go on to the next of several addresses.
    do {
        shutDown(buses);
    } while (!hasEnded());
}

void ConnectionGuard::shutDown(const std::set<QByteArray> &buses)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_isOver) {
        return; // connected in the last moment
    }
    forEachSocket([this, &buses](int descriptor, const QByteArray &name) {
        if (m_before.count(name) > 0) {
            return;
        }
        // A duplicate: the original may be closed meanwhile, and its number reused.
        const int copy = fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
        if (copy >= 0) {
            if (buses.count(peerOf(copy)) > 0) {
                shutdown(copy, SHUT_RDWR);
            }
            close(copy);
        }
    });
}
