// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "busaddress.h"

#include <QByteArrayList>

#include <cstddef>
#include <cstring>

namespace {

/// The value of a key in "unix:path=/run/bus,guid=…"; null when the key is missing.
QByteArray valueOf(const QByteArray &address, const QByteArray &key)
{
    const QByteArrayList pairs = address.mid(address.indexOf(':') + 1).split(',');
    for (const QByteArray &pair : pairs) {
        if (pair.startsWith(key + '=')) {
            return QByteArray::fromPercentEncoding(pair.mid(key.size() + 1));
        }
    }
    return {};
}

} // namespace

QByteArray BusAddress::ownBus()
{
    return "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus";
}

QByteArray BusAddress::socketOf(const QByteArray &address)
{
    if (!address.startsWith("unix:")) {
        return {};
    }
    const QByteArray abstractName = valueOf(address, "abstract");
    if (!abstractName.isNull()) {
        return '\0' + abstractName;
    }
    if (valueOf(address, "runtime") == "yes") {
        return qgetenv("XDG_RUNTIME_DIR") + "/bus";
    }
    return valueOf(address, "path");
}

socklen_t BusAddress::fill(sockaddr_un &name, const QByteArray &path)
{
    name = {};
    if (path.size() >= static_cast<int>(sizeof(name.sun_path))) {
        return 0;
    }
    name.sun_family = AF_UNIX;
    std::memcpy(name.sun_path, path.constData(), static_cast<size_t>(path.size()));
    // A file's name ends with its NUL; an abstract name is as long as its length says.
    return static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<size_t>(path.size()) +
                                  (path.startsWith('\0') ? 0 : 1));
}
