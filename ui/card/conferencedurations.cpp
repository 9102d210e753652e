// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencedurations.h"

ConferenceDurations::ConferenceDurations()
    : m_labels{
          {5 * Minute, QStringLiteral("5分钟")},   {10 * Minute, QStringLiteral("10分钟")},
          {15 * Minute, QStringLiteral("15分钟")}, {30 * Minute, QStringLiteral("30分钟")},
          {1 * Hour, QStringLiteral("1小时")},     {2 * Hour, QStringLiteral("2小时")},
          {3 * Hour, QStringLiteral("3小时")},     {4 * Hour, QStringLiteral("4小时")},
      }
{
}

QStringList ConferenceDurations::choices(bool isPayingUser) const
{
    QStringList choices;
    for (auto row = m_labels.constBegin(); row != m_labels.constEnd(); ++row) {
        if (row.key() >= Hour && !isPayingUser) {
            break;
        }
        choices.append(row.value());
    }
    return choices;
}

QString ConferenceDurations::label(qint64 duration)
{
    return m_labels[duration];
}

qint64 ConferenceDurations::duration(const QString &label) const
{
    return m_labels.key(label);
}
