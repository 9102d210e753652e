// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// How often the same question is put.
constexpr int MostTries = 3;

/// The text of the row @p name of answers.tsv, for the @p tryNumber-th time (from 1); each try is clearer
/// than the last.
QString answerText(const QString &name, int tryNumber = 1);

} // namespace understanding
