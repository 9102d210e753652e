// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QString>

QT_BEGIN_NAMESPACE
struct QJsonParseError;
QT_END_NAMESPACE

/**
 * The time that a spoken date means: a day, or a day and a time, in the machine's local time. The
 * understanding service sends it as a text inside the slot, {"suggestDatetime":"2026-03-07T10:20:00"} or
 * {"suggestDatetime":"2026-03-07"}.
 */
class SpokenTime
{
public:
    /// @p slotText is outside input; what cannot be read gives an empty text() and an invalid date().
    static SpokenTime fromSlot(const QString &slotText, QJsonParseError *error = nullptr);

    /// As it was sent.
    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] bool hasTime() const { return m_hasTime; }
    [[nodiscard]] QDate date() const { return m_date; }
    /// The exact time of a text that has one; invalid for what does not exist in the calendar.
    [[nodiscard]] QDateTime exact() const;

private:
    QString m_text;
    QDate m_date;
    QTime m_time;
    bool m_hasTime = false;
};

/// Local time of the machine. Where clocks are put forward some times do not exist; these become the time
/// that the clock shows instead, so 02:30 becomes 03:30. Invalid for an invalid date or time.
namespace LocalTime {
QDateTime at(const QDate &date, const QTime &time);
QDateTime startOfDay(const QDate &date);
/// Of the hour after @p now; from 23:00 on that is the next day's first.
QDateTime nextFullHour(const QDateTime &now);
/// Milliseconds since the epoch; 0 for an invalid time.
qint64 msecs(const QDateTime &dateTime);
} // namespace LocalTime
