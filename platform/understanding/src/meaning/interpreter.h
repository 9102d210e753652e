// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"
#include "meaning/reading.h"
#include "words/contactindex.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace understanding {

/// The characters of the longest sentence; longer ones are refused unread.
constexpr int LongestSentence = 500;

/// What a sentence means, and what it was read from.
struct Interpretation
{
    Reading whole;
    std::optional<Reading> order; ///< the order alone, if it means something else together with what is told
    Outcome outcome;

    const Reading &reading() const { return order ? *order : whole; }
};

/// Interprets @p sentence by itself, at @p now; if it only tells something beside the order, that order:
/// 刚掉线了，重新进一下我的会议; 约李娜三点开会，我五点有事.
Interpretation interpret(const QString &sentence, const QDateTime &now, const ContactIndex &contacts);

/// Interprets the whole of @p reading by itself, at @p now.
Outcome interpret(const Reading &reading, const QDateTime &now);

/// Adds the datetime slot for @p time, which was typed as @p said; if the time cannot be resolved, sets the
/// answer instead.
void fillTime(Outcome &outcome, const TimeExpression &time, const QString &said, const QDateTime &now);

/// The question for the slot that the intent of @p outcome requires but lacks, empty for none.
QString missingSlotQuestion(const Outcome &outcome);

/// The question whether to carry out @p outcome, as a row of answers.tsv.
QString confirmation(const Outcome &outcome);

} // namespace understanding
