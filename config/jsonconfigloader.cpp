// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "jsonconfigloader.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

namespace {

/// Far more than a configuration of this form needs.
constexpr qint64 MostBytes = Q_INT64_C(1024) * 1024;

void reportUnread(const QString &path, const QString &reason)
{
    qDebug() << "Load config failed, can not open file:" << path;
    if (!reason.isEmpty()) {
        qWarning() << "The configuration is not read:" << qPrintable(reason);
    }
}

/// The content of a regular file of at most MostBytes; none, with the reason in the log, of anything else.
std::optional<QByteArray> readFile(const QString &path)
{
    // A FIFO would wait for its writer.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) {
        reportUnread(path, errno == ENOENT ? QString() : qt_error_string(errno));
        return {};
    }
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        reportUnread(path, file.errorString());
        return {};
    }
    // Asked of what was opened; the path may lead elsewhere by now.
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        reportUnread(path, QStringLiteral("it is not a regular file"));
        return {};
    }
    // Its size is not asked: it may grow while it is read.
    QByteArray content = file.read(MostBytes + 1);
    if (content.size() > MostBytes) {
        reportUnread(path, QStringLiteral("it is larger than 1 MB"));
        return {};
    }
    return content;
}

} // namespace

JsonConfigLoader::JsonConfigLoader(QObject *parent) : QObject(parent) {}

JsonConfigLoader::~JsonConfigLoader()
{
    delete m_document;
}

QJsonDocument *JsonConfigLoader::load(const QString &path)
{
    const std::optional<QByteArray> content = readFile(path);
    if (!content) {
        return nullptr;
    }
    // JSON is UTF-8 by definition, so the bytes go to the parser as they are. The former document is let go
    // of and not deleted: somebody may still read it, and a process loads its configuration once.
    m_document = new QJsonDocument(QJsonDocument::fromJson(*content));
    return m_document;
}

void JsonConfigLoader::unload()
{
    qDebug() << "Unload json config, do nothing";
}
