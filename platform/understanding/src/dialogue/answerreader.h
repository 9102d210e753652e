// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"
#include "meaning/reading.h"

#include <QDateTime>

#include <vector>

namespace understanding {

/// The names of an answer that consists of names, otherwise none.
std::vector<FoundName> answeredNames(const Reading &reading);

/// Takes @p reading as the answer to @p question (a row of answers.tsv) and adds the slot to @p outcome.
/// Accepts only a sentence that holds nothing but an answer, so that chit-chat never fills a slot. The time
/// said so far is @p timeBefore. Returns false if nothing was answered; sets a new problem with the answer as
/// the outcome's answer.
bool takeAnswer(const QString &question, const Reading &reading, const QDateTime &now,
                const TimeExpression &timeBefore, Outcome &outcome);

} // namespace understanding
