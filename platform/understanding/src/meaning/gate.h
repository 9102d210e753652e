// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

namespace understanding {

/// Whether a decided intent is carried out.
enum class Verdict {
    Act,
    Ask,   ///< in doubt: something was not understood, or it may be a report
    Refuse ///< negated, reported, told of somebody else, or supposed
};

/// Has the last word after the rules: lets @p intent pass only if the speaker orders it, now, in a clause
/// that was fully understood. Judges the clauses that hold the order; others matter only if they make the
/// order a supposition or cast doubt on it.
Verdict judge(const Reading &reading, const QString &intent);

} // namespace understanding
