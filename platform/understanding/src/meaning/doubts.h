// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

namespace understanding {

/// True if @p reading holds the words of @p intent but probably wants something else, so that the gate asks:
/// 明天开会谁主持, 会议三点开始, 让财务把钱打过来, 我三点在会议室开会.
[[nodiscard]] bool isAboutSomethingElse(const Reading &reading, const QString &intent);

} // namespace understanding
