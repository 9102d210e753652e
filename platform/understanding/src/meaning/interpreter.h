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
constexpr int longestSentence = 500;

/// What \a sentence, standing alone, comes to at \a now.
Outcome interpret(const QString &sentence, const QDateTime &now, const ContactIndex &contacts);

/// Decides what \a reading, standing alone, comes to at \a now.
Outcome interpret(const Reading &reading, const QDateTime &now);

/// Adds the datetime slot for \a time, which was typed as \a said; sets the answer where the time cannot be
/// told.
void fillTime(Outcome &outcome, const TimeExpression &time, const QString &said, const QDateTime &now);

/// The slot that \a outcome's intent cannot do without and does not have, as the question to ask; empty for
/// none.
QString missingSlotQuestion(const Outcome &outcome);

} // namespace understanding
