// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Makes one word for nobody in particular of each group that is called: 渠道部所有人 in 跟渠道部所有人,
/// 研究生们. One pass.
void joinGroups(const QString &text, Tokens &tokens);

} // namespace understanding
