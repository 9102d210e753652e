// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "logrecord.h"

namespace devhost {

namespace {

QLatin1String levelName(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg:
        return QLatin1String("debug");
    case QtInfoMsg:
        return QLatin1String("info");
    case QtWarningMsg:
        return QLatin1String("warning");
    case QtCriticalMsg:
        return QLatin1String("critical");
    case QtFatalMsg:
        break;
    }
    return QLatin1String("fatal");
}

} // namespace

QString LogRecord::toText() const
{
    QString shown =
        levelName(level) + QLatin1Char(' ') + QString::fromUtf8(category) + QLatin1String(": ") + text;
    if (!file.isEmpty()) {
        shown += QStringLiteral(" (%1:%2)").arg(QString::fromUtf8(file)).arg(line);
    }
    return shown;
}

} // namespace devhost
