// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"
#include "meaning/reading.h"
#include "words/contactindex.h"

#include <QDateTime>
#include <QString>

namespace understanding {

/// The characters of the longest sentence; longer ones are refused unread.
constexpr int LongestSentence = 500;

/// Interprets @p sentence by itself, at @p now.
Outcome interpret(const QString &sentence, const QDateTime &now, const ContactIndex &contacts);

/// Interprets @p reading by itself, at @p now.
Outcome interpret(const Reading &reading, const QDateTime &now);

/// Adds the datetime slot for @p time, which was typed as @p said; if the time cannot be resolved, sets the
/// answer instead.
void fillTime(Outcome &outcome, const TimeExpression &time, const QString &said, const QDateTime &now);

/// The question for the slot that the intent of @p outcome requires but lacks, empty for none.
QString missingSlotQuestion(const Outcome &outcome);

} // namespace understanding
