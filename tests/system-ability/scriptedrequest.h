// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <kelvane/kelvaneabilitymanager.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <memory>

#include <signal.h>

/// The result of one request.
struct Asked
{
    int code;
    QString answer; ///< "untouched" if there was none
    qint64 msecs;
};

/// Asks the application on the test's bus, through a new ability.
inline Asked ask(const QString &action, const QString &parameters = {}, int timeoutMsecs = 10000)
{
    const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
    ability->setTimeout(timeoutMsecs);
    Asked asked{1, QStringLiteral("untouched"), 0};
    QElapsedTimer timer;
    timer.start();
    asked.code = ability->request(action, parameters, asked.answer);
    asked.msecs = timer.elapsed();
    return asked;
}

/// Runs a process until the end of the scope. The constructor waits for its first output.
class Running
{
public:
    explicit Running(const QString &program, const QStringList &arguments = {})
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(program, arguments);
        m_isReady = m_process.waitForReadyRead(10000);
    }
    ~Running()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY(Running)

    bool isReady() const { return m_isReady; }
    void signal(int number) { ::kill(static_cast<pid_t>(m_process.processId()), number); }

private:
    QProcess m_process;
    bool m_isReady = false;
};

/// The path of the scripted application.
inline QString scripted()
{
    return QStringLiteral(SCRIPTED_APPLICATION);
}
