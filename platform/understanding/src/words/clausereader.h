// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Decides what words mean in context: whether 开 opens a conference, whether 会 is one, how far a topic
/// reaches. Words that mean nothing here become plain characters again.
void settleWords(const QString &text, Tokens &tokens);

} // namespace understanding
