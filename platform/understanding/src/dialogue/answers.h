// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/outcome.h"

#include <QDate>
#include <QString>

namespace understanding {

/// How often a question is put before it is closed.
constexpr int MostTries = 3;

/// The text of the row @p name of answers.tsv for try @p tryNumber, counted from 1; each try is clearer than
/// the last.
QString answerText(const QString &name, int tryNumber = 1);
/// The same for the answer of @p outcome. A question whether to do something names the people, the number
/// and the time, so that nobody agrees to what was misheard; the year only if it is not that of @p today.
QString answerText(const Outcome &outcome, const QDate &today, int tryNumber = 1);

} // namespace understanding
