// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <atomic>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// A bus that is stopped between two connections: answers the first client's greeting, rejecting it, and
/// stays silent to later ones.
class BusForOneQuestion
{
public:
    explicit BusForOneQuestion(const QString &path)
        : m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        qstrncpy(name.sun_path, QFile::encodeName(path).constData(), sizeof(name.sun_path));
        m_isListening = bind(m_descriptor, reinterpret_cast<const sockaddr *>(&name), sizeof(name)) == 0 &&
                        listen(m_descriptor, 5) == 0;
        m_thread = std::thread([this] { answerOne(); });
    }
    ~BusForOneQuestion()
    {
        shutdown(m_descriptor, SHUT_RDWR); // ends a pending accept()
        m_thread.join();
        close(m_descriptor);
    }
    Q_DISABLE_COPY(BusForOneQuestion)
    bool isListening() const { return m_isListening; }
    bool wasAsked() const { return m_wasAsked; }

private:
    void answerOne()
    {
        const int asking = accept(m_descriptor, nullptr, nullptr);
        if (asking < 0) {
            return;
        }
        char said[64];
        const QByteArray word("REJECTED EXTERNAL\r\n");
        m_wasAsked =
            recv(asking, said, sizeof(said), 0) > 0 &&
            send(asking, word.constData(), static_cast<size_t>(word.size()), MSG_NOSIGNAL) == word.size();
        close(asking);
    }

    int m_descriptor;
    bool m_isListening = false;
    std::atomic<bool> m_wasAsked{false};
    std::thread m_thread;
};
