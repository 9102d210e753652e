// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/contactindex.h"
#include "words/token.h"

namespace understanding {

/// Cuts @p text into tokens, once from left to right: known names first, then times, numbers and words, the
/// longest at each place.
Tokens tokenize(const QString &text, const ContactIndex &contacts);

} // namespace understanding
