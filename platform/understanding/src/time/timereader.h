// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timeexpression.h"

#include <QString>

namespace understanding {

/// A time found in a text.
struct TimeMatch
{
    enum class Kind {
        None,
        Time,      ///< a moment or a day
        Duration,  ///< 一个小时: how long, which no slot takes
        UnclearDay ///< 下周, 三月: no single day
    };
    Kind kind = Kind::None;
    int length = 0;
    TimeExpression expression;
};

/// The longest time at @p position; a span (三点到四点) is taken whole and means its start.
TimeMatch readTime(const QString &text, int position);

} // namespace understanding
