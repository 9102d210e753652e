// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QProcess>

#include <csignal>

#include <sys/resource.h>

/// The application on a data folder. With @p roomBytes, no file may grow beyond that size, as on a full disk.
class Application : public QProcess
{
public:
    explicit Application(const QString &dataFolder, int roomBytes = -1) : m_roomBytes(roomBytes)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), dataFolder);
        setProcessEnvironment(environment);
        start(QStringLiteral(APPLICATION), {QStringLiteral("--service")});
    }

protected:
    void setupChildProcess() override
    {
        if (m_roomBytes >= 0) {
            const rlimit limit{static_cast<rlim_t>(m_roomBytes), static_cast<rlim_t>(m_roomBytes)};
            setrlimit(RLIMIT_FSIZE, &limit);
            signal(SIGXFSZ, SIG_IGN);
        }
    }

private:
    int m_roomBytes;
};
