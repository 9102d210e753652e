// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "busprobe.h"

#include "busaddress.h"

#include <QByteArrayList>

#include <cerrno>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int StepMsecs = 20;

/// Closes the descriptor at the end of the scope.
class Socket
{
public:
    Socket() : m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
    ~Socket()
    {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }
    Q_DISABLE_COPY(Socket)
    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

bool connectTo(const Socket &socket, const QByteArray &path, const std::function<bool()> &goesOn)
{
    sockaddr_un name;
    const socklen_t length = BusAddress::fill(name, path);
    if (length == 0) {
        return false;
    }
    // EAGAIN: the listen queue is full because the bus accepts nobody.
    while (connect(socket.descriptor(), reinterpret_cast<const sockaddr *>(&name), length) != 0) {
        if ((errno != EAGAIN && errno != EINTR) || !goesOn()) {
            return false;
        }
        poll(nullptr, 0, StepMsecs);
    }
    return true;
}

/// Starts the authentication handshake and waits for any answer.
BusProbe::Found hasAnswer(const Socket &socket, const std::function<bool()> &goesOn)
{
    const QByteArray hello = QByteArray(1, '\0') + "AUTH\r\n";
    if (send(socket.descriptor(), hello.constData(), static_cast<size_t>(hello.size()), MSG_NOSIGNAL) !=
        hello.size()) {
        return BusProbe::Found::Nothing;
    }
    pollfd waiting{socket.descriptor(), POLLIN, 0};
    while (poll(&waiting, 1, StepMsecs) <= 0) {
        if (!goesOn()) {
            return BusProbe::Found::Silence;
        }
    }
    char byte = 0;
    return recv(socket.descriptor(), &byte, 1, 0) == 1 ? BusProbe::Found::Bus : BusProbe::Found::Nothing;
}

BusProbe::Found askOne(const QByteArray &address, const std::function<bool()> &goesOn)
{
    const QByteArray path = BusAddress::socketOf(address);
    if (path.isEmpty()) {
        return BusProbe::Found::Bus;
    }
    const Socket socket;
    if (socket.descriptor() < 0 || !connectTo(socket, path, goesOn)) {
        return goesOn() ? BusProbe::Found::Nothing : BusProbe::Found::Silence;
    }
    return hasAnswer(socket, goesOn);
}

} // namespace

BusProbe::Found BusProbe::ask(const QByteArray &addresses, const std::function<bool()> &goesOn)
{
    QByteArray all = addresses;
    if (all.isEmpty()) {
        const QByteArray own = qgetenv("XDG_RUNTIME_DIR") + "/bus";
        // Without an address libdbus may or may not start a bus of its own; there is nothing to probe.
        if (access(own.constData(), F_OK) != 0) {
            return Found::Bus;
        }
        all = BusAddress::ownBus();
    }
    Found found = Found::Nothing;
    const QList<QByteArray> alternatives = all.split(';');
    for (const QByteArray &address : alternatives) {
        found = askOne(address, goesOn);
        if (found != Found::Nothing) {
            return found;
        }
    }
    return found;
}
