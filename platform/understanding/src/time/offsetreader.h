// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timeexpression.h"

#include <QString>

namespace understanding {

/// Reads a length of time (一个半小时, 1.5小时, 二十分钟, 两天) at @p position; sets @p isOffset if it counts
/// from now (半小时后, 过二十分钟). Returns how many characters it takes, 0 for none.
int readLengthOfTime(const QString &text, int position, TimeExpression &expression, bool &isOffset);

} // namespace understanding
