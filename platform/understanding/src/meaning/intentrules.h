// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

#include <QString>

namespace understanding {

/// What a sentence wants: an intent's name, or with a "?" before it the row of answers.tsv that it is
/// answered with. Decided by the first row of intents.tsv that fits.
QString decideIntent(const Reading &reading);

} // namespace understanding
