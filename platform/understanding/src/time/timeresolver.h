// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timeexpression.h"

#include <QDateTime>

namespace understanding {

/// A time resolved against a clock.
struct ResolvedTime
{
    enum class Problem {
        None,
        NoSuchDate,    ///< 2月30号
        Contradiction, ///< 上午13点, 25点
        NoHour         ///< 凌晨: too vague to begin a conference
    };
    Problem problem = Problem::None;
    QDate date;
    QTime time; ///< invalid where only a day was said

    /// "yyyy-MM-dd" or "yyyy-MM-ddThh:mm:ss".
    QString toString() const;
};

/// Resolves @p expression against @p now, in local time. A past time stays past.
ResolvedTime resolveTime(const TimeExpression &expression, const QDateTime &now);

} // namespace understanding
