// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/privatefiles.h"

#include "core/databaseerror.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t OwnFolder = 0700;
constexpr mode_t OwnFile = 0600;

void restrictTo(mode_t mode, const QString &path)
{
    struct stat status = {};
    const QByteArray name = QFile::encodeName(path);
    if (lstat(name.constData(), &status) != 0 || S_ISLNK(status.st_mode) ||
        (status.st_mode & 07777U) == mode) {
        return;
    }
    if (chmod(name.constData(), mode) != 0) {
        qWarning() << "Others may be able to read" << path << ":" << std::strerror(errno);
    }
}

} // namespace

void makePrivate(const QString &databaseFile)
{
    const QFileInfo file(databaseFile);
    const QDir folder = file.absoluteDir();
    if (!folder.exists()) {
        // Created private, so that there is never a moment when it is not.
        const mode_t former = umask(077);
        const bool made = QDir().mkpath(folder.path());
        umask(former);
        if (!made) {
            throw DatabaseError(QStringLiteral("the folder %1 cannot be made").arg(folder.path()));
        }
    }
    restrictTo(OwnFolder, folder.path());
    const int descriptor =
        open(QFile::encodeName(databaseFile).constData(), O_RDWR | O_CREAT | O_CLOEXEC, OwnFile);
    if (descriptor < 0) {
        throw DatabaseError(QStringLiteral("%1 cannot be opened: %2")
                                .arg(databaseFile, QString::fromLocal8Bit(std::strerror(errno))));
    }
    close(descriptor);
    const QStringList files = folder.entryList({file.fileName() + QLatin1Char('*')}, QDir::Files);
    for (const QString &name : files) {
        restrictTo(OwnFile, folder.filePath(name));
    }
}
