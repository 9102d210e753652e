// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"
#include "meaning/reading.h"
#include "words/contactindex.h"

#include <QDateTime>
#include <QString>

namespace understanding {

/// Sentences of more characters are refused unread.
constexpr int LongestSentence = 500;

/// What @p sentence, standing alone, comes to at @p now.
Outcome interpret(const QString &sentence, const QDateTime &now, const ContactIndex &contacts);

/// Decides what @p reading, standing alone, comes to at @p now.
Outcome interpret(const Reading &reading, const QDateTime &now);

/// Adds the datetime slot for @p time, which was typed as @p said; sets the answer where the time cannot be
/// told.
void fillTime(Outcome &outcome, const TimeExpression &time, const QString &said, const QDateTime &now);

/// The slot that @p outcome's intent cannot do without and does not have, as the question to ask; empty for
/// none.
QString missingSlotQuestion(const Outcome &outcome);

} // namespace understanding
