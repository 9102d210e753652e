// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QProcess>

/// How a program ended and what it wrote.
struct ProgramRun
{
    int status = -1; ///< -1 if it did not start, crashed or had to be killed
    QByteArray output;
    QByteArray errors;
};

/// Runs @p program with @p input on its standard input. Waits at most one minute.
inline ProgramRun
runProgram(const QString &program, const QStringList &arguments, const QByteArray &input = {},
           const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    ProgramRun run;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit) {
        run.status = process.exitCode();
    }
    run.output = process.readAllStandardOutput();
    run.errors = process.readAllStandardError();
    return run;
}
