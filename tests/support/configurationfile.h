// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

/// A configuration file that lives as long as the object.
class ConfigurationFile
{
public:
    explicit ConfigurationFile(const QByteArray &content)
    {
        QFile file(m_folder.filePath(QStringLiteral("any.json")));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("the configuration file cannot be written");
        }
    }

    QByteArray path() const { return m_folder.filePath(QStringLiteral("any.json")).toUtf8(); }

private:
    QTemporaryDir m_folder;
};
