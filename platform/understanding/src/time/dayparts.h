// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QTime>

#include <vector>

namespace understanding {

/// One part of the day and the hours it takes.
struct DayPart
{
    QString word;
    int firstHour = 0;
    int lastHour = 0; ///< beyond 24 for an evening that runs into the next day
    int firstShifted = -1;
    int lastShifted = -1;
    QTime start; ///< invalid where the hour has to be asked

    /// The hour of 24 that @p saidHour means in this part of the day (24 to 28 are on the next day); -1 where
    /// it contradicts it.
    int hourFor(int saidHour) const;
};

/// The parts of the day, from the rule file.
const std::vector<DayPart> &dayParts();

/// The row of the longest part of the day at @p position, -1 for none. "早" and "晚" alone count only with
/// @p shortForms: after a day.
int dayPartAt(const QString &text, int position, bool shortForms);

} // namespace understanding
