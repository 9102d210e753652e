// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"

#include <QString>

namespace understanding {

/// The semantic JSON of an intent to carry out, on one line:
/// {"intent":{"semantic":[{"intent":"ADD_BUDDY","slots":[{"name":"account","normValue":"lisi","value":"lisi"}]}],
///            "shouldEndSession":true}}
QString commandJson(const Outcome &outcome);

/// The semantic JSON of an answer, on one line: no intent, "shouldEndSession" false, @p text to show and to
/// speak.
QString answerJson(const QString &text);

} // namespace understanding
