// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

#include <QString>

namespace understanding {

/// Marks what calls the assistant before an order: 小电脑 in 小电脑，帮我开个会. A known contact is no
/// assistant.
void settleAddress(const QString &text, Tokens &tokens);

} // namespace understanding
