// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/clocktext.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

QString clockText(const QDateTime &time, const QDate &today)
{
    if (time.date() == today) {
        return time.toString(QStringLiteral("HH:mm"));
    }
    return QLocale().toString(time, QCoreApplication::translate("ClockText", "MMM d, HH:mm"));
}
