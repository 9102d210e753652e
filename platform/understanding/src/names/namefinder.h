// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

#include <QString>

namespace understanding {

/// A person named in a sentence.
struct FoundName
{
    int position = 0;
    int start = 0;              ///< where the description begins: 产品经理吴迪
    QString said;               ///< as typed
    QString name;               ///< as the contacts spell it
    bool behindTrigger = false; ///< called, not only mentioned
    bool doubtful = false;      ///< does not look like a name, or something was left behind it
};

/// The people in a sentence, in order: known contacts wherever they stand, unknown ones behind the words that
/// call people (叫上, 和, 参会人).
std::vector<FoundName> findNames(const QString &raw, const QString &text, const Tokens &tokens);

/// The people in an answer to "whom?", where no word calls them: 赵云和马超.
std::vector<FoundName> findAnsweredNames(const QString &raw, const QString &text, const Tokens &tokens);

} // namespace understanding
