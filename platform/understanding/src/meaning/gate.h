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

/// The last word after the rules: lets @p intent pass only where the speaker orders it, now, in a clause that
/// was understood whole. Looks at the clauses that hold the order; what else was said does not matter, unless
/// it makes the order a supposition. One pass over the tokens.
Verdict judge(const Reading &reading, const QString &intent);

} // namespace understanding
