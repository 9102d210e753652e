// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QString>

QT_BEGIN_NAMESPACE
struct QJsonParseError;
QT_END_NAMESPACE

/**
 * A spoken day, or day and time, in local time. The understanding service sends it as JSON text inside the
 * slot: {"suggestDatetime":"2026-03-07T10:20:00"} or {"suggestDatetime":"2026-03-07"}.
 */
class SpokenTime
{
public:
    /// @p slotText is untrusted; if it cannot be read, text() is empty and date() invalid.
    static SpokenTime fromSlot(const QString &slotText, QJsonParseError *error = nullptr);

    /// The "suggestDatetime" as sent.
    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] bool hasTime() const { return m_hasTime; }
    [[nodiscard]] QDate date() const { return m_date; }
    /// Day and time; invalid without a time, and for dates that the calendar does not have.
    [[nodiscard]] QDateTime exact() const;

private:
    QString m_text;
    QDate m_date;
    QTime m_time;
    bool m_hasTime = false;
};

/// Local times that exist: a time skipped when clocks go forward becomes the one the clock shows instead,
/// 03:30 for 02:30. Invalid for an invalid date or time.
namespace LocalTime {
QDateTime at(const QDate &date, const QTime &time);
QDateTime startOfDay(const QDate &date);
/// The start of the hour after @p now; from 23:00 on, the next day's midnight.
QDateTime nextFullHour(const QDateTime &now);
/// Milliseconds since the epoch; 0 for an invalid time.
qint64 msecs(const QDateTime &dateTime);
} // namespace LocalTime
