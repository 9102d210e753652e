// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timeexpression.h"

#include <QString>

namespace understanding {

/// Reads a day (明天, 下周三, 3月20号, 2026-03-20) at @p position into @p expression and returns how many
/// characters it takes, 0 for none. Sets @p unclear for an ambiguous day (下周, 三月).
int readDay(const QString &text, int position, TimeExpression &expression, bool &unclear);

} // namespace understanding
