// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencehours.h"

namespace {
constexpr int HoursOfDay = 24;
constexpr int FirstWithTwoDigits = 10;
} // namespace

ConferenceHours::ConferenceHours()
{
    for (int hour = 0; hour < HoursOfDay; ++hour) {
        const QString pattern =
            hour < FirstWithTwoDigits ? QStringLiteral("0%1:00") : QStringLiteral("%1:00");
        m_labels.insert(hour, pattern.arg(hour));
    }
}

QStringList ConferenceHours::choices() const
{
    return m_labels.values();
}

QString ConferenceHours::label(const QTime &time) const
{
    return m_labels.value(time.hour());
}

QTime ConferenceHours::time(const QString &label) const
{
    return QTime(m_labels.key(label, -1), 0);
}
