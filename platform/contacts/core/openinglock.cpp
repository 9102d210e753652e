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

/// Reading a large damaged file takes time.
constexpr int PatienceMsecs = 60000;

DatabaseError errorFor(const QString &file)
{
    return DatabaseError(
        QStringLiteral("%1 cannot be locked: %2").arg(file, QString::fromLocal8Bit(std::strerror(errno))));
}

QString lockFile(const QString &databaseFile)
{
    return databaseFile + QStringLiteral(".lock");
}

int openLockFile(const QString &databaseFile)
{
    constexpr mode_t ownFile = 0600;
    const QString file = lockFile(databaseFile);
    const int descriptor = open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC, ownFile);
    if (descriptor < 0) {
        throw errorFor(file);
    }
    return descriptor;
}

/// A lock on a range of the file that belongs to the descriptor rather than the process, and is independent
/// of the lock on the whole file.
struct flock partLock(short type)
{
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_len = 1;
    return lock;
}

} // namespace

OpeningLock::OpeningLock(const QString &databaseFile) : m_descriptor(openLockFile(databaseFile))
{
    QElapsedTimer waiting;
    waiting.start();
    while (flock(m_descriptor, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || waiting.elapsed() >= PatienceMsecs) {
            const DatabaseError error = errorFor(lockFile(databaseFile));
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

UseLock::UseLock(const QString &databaseFile) : m_descriptor(openLockFile(databaseFile))
{
    struct flock lock = partLock(F_RDLCK);
    if (fcntl(m_descriptor, F_OFD_SETLK, &lock) != 0) {
        const DatabaseError error = errorFor(lockFile(databaseFile));
        close(m_descriptor);
        throw error;
    }
}

UseLock::~UseLock()
{
    close(m_descriptor);
}

bool UseLock::isHeld(const QString &databaseFile)
{
    const int descriptor = openLockFile(databaseFile);
    struct flock lock = partLock(F_WRLCK);
    const int result = fcntl(descriptor, F_OFD_GETLK, &lock);
    const DatabaseError error = errorFor(lockFile(databaseFile));
    close(descriptor);
    if (result != 0) {
        throw error;
    }
    return lock.l_type != F_UNLCK;
}
