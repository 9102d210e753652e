// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

/// Reports that another program may have written a settings file. Neither the file nor its folder needs to
/// exist, and the file may be replaced.
class SettingsWatch final : public QObject
{
    Q_OBJECT

public:
    explicit SettingsWatch(const QString &fileName, QObject *parent = nullptr);

Q_SIGNALS:
    /// Once per burst of writes.
    void changed();

private:
    void watch();

    QString m_fileName;
    QFileSystemWatcher m_watcher;
    QTimer m_burst;
};
