// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <sys/types.h>

/// The application's name on the session bus, and the path of its administration object.
inline const QString ServiceName = QStringLiteral("com.kelvane.meetlynx");
inline const QString AdminPath = QStringLiteral("/com/kelvane/meetlynx/admin");

/// How long a loaded machine may take to start a process or to notice its end (ms).
constexpr int PatientMsecs = 30000;

/// The application's answer, as the ability library delivers it.
struct Asked
{
    int code = 1;
    QJsonObject answer;

    QString ret() const { return answer.value(QLatin1String("ret")).toString(); }
    QJsonObject conference() const { return answer.value(QLatin1String("list")).toArray().at(0).toObject(); }
};

/// Asks the application through the ability library; the bus starts it if necessary. Any thread.
Asked ask(const QString &action, const QJsonObject &parameters = {}, int timeoutMsecs = PatientMsecs);

/// Returns 0 while the application is not running.
pid_t servicePid();

/// Kills the application, if running, and waits until the bus has noticed.
void killApplication();
