// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"
#include "meaning/reading.h"
#include "meaning/remarks.h"

#include <QDateTime>

namespace understanding {

/// Takes from @p outcome, the meaning of @p order at @p now, who does not come according to @p remarks. Makes
/// it a question where it stays open who is to come, or when.
void applyRemarks(const Remarks &remarks, const Reading &order, const QDateTime &now, Outcome &outcome);

} // namespace understanding
