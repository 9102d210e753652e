// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "launchertypes.h"

#include <QDBusMessage>
#include <QProcess>
#include <QStringList>

/// "speakmate-devhost --service" with the test plugin, and the calls that launchers make over the bus.
class LauncherProgram
{
public:
    /// Starts the program; @p arguments follow the plugin's.
    explicit LauncherProgram(const QStringList &arguments = {});
    /// Terminates the program.
    ~LauncherProgram();

    QProcess &process() { return m_process; }
    /// Returns true if the program's name is on the bus.
    static bool isThere();

    static QDBusMessage call(const QString &path, const QString &interface, const QString &method,
                             const QVariantList &arguments = {});
    static QDBusMessage krunner(const QString &method, const QVariantList &arguments = {});
    static QDBusMessage shell(const QString &method, const QVariantList &arguments = {});

    static devhost::KRunnerMatches match(const QString &query);
    static QStringList search(const QStringList &terms);
    static devhost::SearchMetas metas(const QStringList &results);

private:
    QProcess m_process;
};
