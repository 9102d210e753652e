// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/openinglock.h"

#include "core/databaseerror.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

/// Reading a large damaged file takes its time.
constexpr int PatienceMsecs = 60000;

DatabaseError errorFor(const QString &file)
{
    return DatabaseError(
        QStringLiteral("%1 cannot be locked: %2").arg(file, QString::fromLocal8Bit(std::strerror(errno))));
}

} // namespace

OpeningLock::OpeningLock(const QString &databaseFile)
{
    constexpr mode_t ownFile = 0600;
    const QString file = databaseFile + QStringLiteral(".lock");
    m_descriptor = open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC, ownFile);
    if (m_descriptor < 0) {
        throw errorFor(file);
    }
    QElapsedTimer waiting;
    waiting.start();
    while (flock(m_descriptor, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || waiting.elapsed() >= PatienceMsecs) {
            const DatabaseError error = errorFor(file);
            close(m_descriptor);
            throw error;
        }
        QThread::msleep(10);
    }
}

OpeningLock::~OpeningLock()
{
    close(m_descriptor);
}
