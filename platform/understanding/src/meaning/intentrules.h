// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

#include <QString>

namespace understanding {

/// Decides what a sentence wants by the first row of intents.tsv that fits. Returns an intent's name, or "? "
/// followed by the row of answers.tsv to answer with.
QString decideIntent(const Reading &reading);

} // namespace understanding
