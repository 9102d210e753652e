// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "jsonconfigloader.h"

#include "defaultlog.h"

#include <QFile>
#include <QJsonDocument>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

namespace {

/// Far more than any such configuration needs.
constexpr qint64 MostBytes = Q_INT64_C(1024) * 1024;

void reportUnread(const QString &path, const QString &reason)
{
    qCDebug(defaultLog) << "Load config failed, can not open file:" << path;
    if (!reason.isEmpty()) {
        qCWarning(defaultLog) << "The configuration is not read:" << qPrintable(reason);
    }
}

/// Returns the content of a regular file of at most MostBytes. Logs the reason and returns nothing otherwise.
std::optional<QByteArray> readFile(const QString &path)
{
    // Opening a FIFO would block until somebody writes.
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
    // Check the open file: the path may lead elsewhere by now.
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        reportUnread(path, QStringLiteral("it is not a regular file"));
        return {};
    }
    // Do not trust its size: it may grow while it is read.
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
    // JSON is UTF-8 by definition, so the bytes go straight to the parser. Deliberately leaks the previous
    // document: somebody may still read it, and a process loads its configuration once.
    m_document = new QJsonDocument(QJsonDocument::fromJson(*content));
    return m_document;
}

void JsonConfigLoader::unload()
{
    qCDebug(defaultLog) << "Unload json config, do nothing";
}
