// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "service/display.h"

#include <QByteArray>
#include <QDir>
#include <QLibraryInfo>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

namespace {

/// Connects to a local socket; a leading NUL means an abstract name.
bool answers(const QByteArray &path)
{
    sockaddr_un address{};
    if (path.size() >= static_cast<int>(sizeof(address.sun_path))) {
        return false;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0) {
        return false;
    }
    // A file's name ends with its NUL; an abstract name is as long as its length says.
    const size_t length =
        offsetof(sockaddr_un, sun_path) + static_cast<size_t>(path.size()) + (path.startsWith('\0') ? 0 : 1);
    const bool connected = connect(descriptor, reinterpret_cast<const sockaddr *>(&address),
                                   static_cast<socklen_t>(length)) == 0;
    close(descriptor);
    return connected;
}

bool hasX11()
{
    const QByteArray display = qgetenv("DISPLAY");
    if (display.isEmpty()) {
        return false;
    }
    if (!display.startsWith(':')) {
        return true; // on another machine; only Qt itself can tell
    }
    const QByteArray path = "/tmp/.X11-unix/X" + display.mid(1, display.indexOf('.') - 1);
    return answers(path) || answers('\0' + path);
}

bool hasWayland()
{
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    if (display.isEmpty()) {
        return false;
    }
    const QDir plugins(QLibraryInfo::location(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    if (plugins.entryList({QStringLiteral("libqwayland*")}).isEmpty()) {
        return false;
    }
    return answers(display.startsWith('/') ? display : qgetenv("XDG_RUNTIME_DIR") + '/' + display);
}

} // namespace

bool canShowWindows()
{
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || hasX11() || hasWayland();
}
