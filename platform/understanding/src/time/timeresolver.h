// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timeexpression.h"

#include <QDateTime>

namespace understanding {

/// A said time set against a clock.
struct ResolvedTime
{
    enum class Problem {
        None,
        NoSuchDate,    ///< 2月30号
        Contradiction, ///< 上午13点, 25点
        NoHour         ///< 凌晨: too wide to begin a conference
    };
    Problem problem = Problem::None;
    QDate date;
    QTime time; ///< invalid where only a day was said

    /// "yyyy-MM-dd" or "yyyy-MM-ddThh:mm:ss".
    QString toString() const;
};

/// What @p expression means at @p now, in local time. A time that is past stays past.
ResolvedTime resolveTime(const TimeExpression &expression, const QDateTime &now);

} // namespace understanding
