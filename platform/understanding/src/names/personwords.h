// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Joins the words that say who the person behind them is, where somebody is called: 我弟 in 跟我弟陈麒,
/// 视频组的 in 约视频组的史小平. A job that is also a request describes whoever is named behind it: 翻译 in
/// 和翻译小阮. One pass.
void joinPersonWords(const QString &text, Tokens &tokens);

} // namespace understanding
