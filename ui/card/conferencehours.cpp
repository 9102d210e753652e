// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencehours.h"

namespace {
constexpr int HoursOfDay = 24;
} // namespace

QStringList ConferenceHours::choices()
{
    QStringList labels;
    for (int hour = 0; hour < HoursOfDay; ++hour) {
        labels.append(label(QTime(hour, 0)));
    }
    return labels;
}

QString ConferenceHours::label(const QTime &time)
{
    constexpr int digits = 2;
    constexpr int decimal = 10;
    return time.isValid() ? QStringLiteral("%1:00").arg(time.hour(), digits, decimal, QLatin1Char('0'))
                          : QString();
}

QTime ConferenceHours::time(const QString &label)
{
    return QTime(choices().indexOf(label), 0);
}
