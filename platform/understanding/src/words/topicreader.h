// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Marks the topic of a conference, which runs to the end of its clause or to the conference: 关于预算的会议.
void settleTopics(const QString &text, Tokens &tokens);

} // namespace understanding
