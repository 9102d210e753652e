// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Marks what says which kind of conference is opened as part of the topic, where words of the rules stand in
/// it: 登录功能 in 开个登录功能评审会 joins nothing. Makes one pass over the tokens.
void settleKinds(const QString &text, Tokens &tokens);

/// Takes the kinds of conferences apart that a word of the rules reaches into: 招商会 with its 商会, and 订
/// in 开订单会. Call before names are looked for. One pass.
void splitKinds(const QString &text, Tokens &tokens);

} // namespace understanding
