// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <sys/types.h>

/// The application's name on the session bus and its object for the administration.
inline const QString ServiceName = QStringLiteral("com.kelvane.meetlynx");
inline const QString AdminPath = QStringLiteral("/com/kelvane/meetlynx/admin");

/// How long a loaded machine may take to start a process, or to notice its end.
constexpr int PatientMsecs = 30000;

/// An answer of the application, as the ability library hands it over.
struct Asked
{
    int code = 1;
    QJsonObject answer;

    QString ret() const { return answer.value(QLatin1String("ret")).toString(); }
    QJsonObject conference() const { return answer.value(QLatin1String("list")).toArray().at(0).toObject(); }
};

/// Asks the application through the ability library; the bus starts it where it does not run. Any thread.
Asked ask(const QString &action, const QJsonObject &parameters = {}, int timeoutMsecs = PatientMsecs);

/// 0 while the application does not run.
pid_t servicePid();

/// Kills the application where it runs, and waits until the bus has noticed.
void killApplication();
