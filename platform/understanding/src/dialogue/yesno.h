// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "text/sentence.h"

namespace understanding {

/// The answer to a question like "要现在发起会议吗？".
enum class YesNo { Yes, No, Unclear };

/// Takes the whole of @p sentence as an answer; anything but a plain yes or no is unclear.
YesNo readYesNo(const Sentence &sentence);

} // namespace understanding
