// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QTime>

namespace understanding {

/// A part of the day and its hours.
struct DayPart
{
    QString word;
    int firstHour = 0;
    int lastHour = 0; ///< beyond 24 for an evening that runs into the next day
    int firstShifted = -1;
    int lastShifted = -1;
    QTime start; ///< invalid if the hour must be asked for

    /// The 24-hour clock's hour that @p saidHour means in this part of the day (24 to 28 are on the next
    /// day), -1 for a contradiction.
    int hourFor(int saidHour) const;
};

/// The part of the day in @p row, as dayPartAt() returns it.
const DayPart &dayPart(int row);

/// The row of the longest part of the day at @p position, -1 for none. Single characters such as "早" and
/// "晚" count only with @p shortForms, after a day.
int dayPartAt(const QString &text, int position, bool shortForms);

} // namespace understanding
