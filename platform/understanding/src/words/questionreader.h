// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Settles which words ask: 明天三点开会如何 proposes, 如何开会 asks for help.
void settleQuestions(const QString &text, Tokens &tokens);

} // namespace understanding
