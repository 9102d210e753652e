// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// True if the word right before the one at @p at negates it: 叫 in 不叫李娜, 带 in 别带小王.
[[nodiscard]] bool isNegatedBefore(const QString &text, const Tokens &tokens, std::size_t at);

/// True for 不参加了 and 不去.
[[nodiscard]] bool isAbsence(const QString &text, const Token &token);

} // namespace understanding
