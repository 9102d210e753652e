// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/contactindex.h"
#include "words/token.h"

namespace understanding {

/// Splits @p text into tokens in one pass from left to right: known names first, then the longest time,
/// number or word at each place.
Tokens tokenize(const QString &text, const ContactIndex &contacts);

} // namespace understanding
