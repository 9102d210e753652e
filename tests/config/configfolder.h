// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "configmanager.h"

#include <QFile>
#include <QTemporaryDir>

/// The value under @p key; "(untouched)" if there is none.
inline QString valueOf(ConfigManager &config, const char *key)
{
    QString value = QStringLiteral("(untouched)");
    config.query(QString::fromUtf8(key), value);
    return value;
}

/// A temporary folder for configuration files.
class ConfigFolder
{
public:
    QString fileWith(const QByteArray &content, const QString &name = QStringLiteral("config.json")) const
    {
        QFile file(filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("cannot write the file");
        }
        return file.fileName();
    }
    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};
