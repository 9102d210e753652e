// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Marks as a topic what only surrounds an order whose hour is said: 开庭前 in 开庭前碰个会, and a clause
/// like 我好安排出差 that tells what the order is good for. Finds 变更 in 需求变更评审会 to be no change. One
/// pass.
void settleFrames(const QString &text, Tokens &tokens);

} // namespace understanding
