// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "names/namefinder.h"

namespace understanding {

/// Finds whom a later clause calls by a pronoun or without one: 沈佳 in 沈佳掉线了，再拉一下她 and
/// 会里缺个沈佳，拉进来. Changes nothing where somebody else is called already.
/// @return where the introduction begins, -1 if nobody is called this way.
int resolvePronouns(const QString &raw, const QString &text, const Tokens &tokens,
                    std::vector<FoundName> &names);

} // namespace understanding
