// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Joins the tokens between a word that calls and what is done into one name where words of the rules have
/// cut it up: 国庆 in 和国庆开会, 于和伟 in 约于和伟明天三点开会, 潘多拉 in 跟潘多拉聊一下. A single
/// character left over beside a word is no name, so the two belong together. Makes one pass over the tokens.
void joinFramedNames(const QString &raw, const QString &text, Tokens &tokens);

} // namespace understanding
