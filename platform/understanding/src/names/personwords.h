// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Joins the tokens that say who somebody is behind a word that calls people. A group becomes one word for
/// nobody in particular (渠道部所有人, 研究生们); a relative (我弟 in 跟我弟陈麒) and a job that is also a
/// request (翻译 in 和翻译小阮) become titles of the name behind them. One pass.
void joinPersonWords(const QString &text, Tokens &tokens);

} // namespace understanding
