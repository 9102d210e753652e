// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timeexpression.h"

#include <QString>

namespace understanding {

/// Reads a time of day (三点半, 差一刻十二点, 15:30) at @p position into @p expression and returns how many
/// characters it takes, 0 for none.
int readClock(const QString &text, int position, TimeExpression &expression);

} // namespace understanding
