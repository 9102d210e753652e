// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "settingswatch.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// A file that is being rewritten in place is empty for a moment.
constexpr int BurstMsecs = 50;

} // namespace

SettingsWatch::SettingsWatch(const QString &fileName, QObject *parent) : QObject(parent), m_fileName(fileName)
{
    m_burst.setSingleShot(true);
    m_burst.setInterval(BurstMsecs);
    const auto noteChange = [this] {
        watch();
        // Not restarted: writes that never pause are reported all the same.
        if (!m_burst.isActive()) {
            m_burst.start();
        }
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, noteChange);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, noteChange);
    connect(&m_burst, &QTimer::timeout, this, &SettingsWatch::changed);
    watch();
}

void SettingsWatch::watch()
{
    // A replaced file is no longer watched, and a folder that is only now created is noticed through its
    // parent.
    QString folder = QFileInfo(m_fileName).absolutePath();
    while (!QDir(folder).exists() && folder != QDir::rootPath()) {
        folder = QFileInfo(folder).absolutePath();
    }
    QStringList others = m_watcher.directories();
    if (!others.removeOne(folder)) {
        m_watcher.addPath(folder);
    }
    if (!others.isEmpty()) {
        m_watcher.removePaths(others); // what changes there is nobody's concern any more
    }
    if (!m_watcher.files().contains(m_fileName) && QFileInfo::exists(m_fileName)) {
        m_watcher.addPath(m_fileName);
    }
}
