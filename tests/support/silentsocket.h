// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// A listening socket that accepts connections and stays silent.
class SilentSocket
{
public:
    explicit SilentSocket(const QString &path) : m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        qstrncpy(name.sun_path, QFile::encodeName(path).constData(), sizeof(name.sun_path));
        m_isListening = bind(m_descriptor, reinterpret_cast<const sockaddr *>(&name), sizeof(name)) == 0 &&
                        listen(m_descriptor, 5) == 0;
    }
    ~SilentSocket() { close(m_descriptor); }
    Q_DISABLE_COPY(SilentSocket)
    bool isListening() const { return m_isListening; }

private:
    int m_descriptor;
    bool m_isListening = false;
};
