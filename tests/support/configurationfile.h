// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

/// A temporary configuration file.
class ConfigurationFile
{
public:
    explicit ConfigurationFile(const QByteArray &content)
    {
        QFile file(m_folder.filePath(QStringLiteral("any.json")));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("cannot write the configuration file");
        }
    }

    QByteArray path() const { return m_folder.filePath(QStringLiteral("any.json")).toUtf8(); }

private:
    QTemporaryDir m_folder;
};
