// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/wordclass.h"

#include <QString>

namespace understanding {

/// What a row of gate.tsv says about an intent.
struct AllowedWords
{
    WordClasses anchors; ///< make a clause part of the order
    WordClasses beside;  ///< may stand beside them
    QString light;       ///< characters that change nothing
};

/// The row for @p intent, empty if there is none.
const AllowedWords &allowedWordsFor(const QString &intent);

} // namespace understanding
