// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "text/rulefile.h"

#include <algorithm>
#include <vector>

namespace understanding {

/// The rows of the rule file @p name, each parsed from a line by @p parse. The longest words come first, so
/// that the first hit is the longest.
template <typename Row>
std::vector<Row> loadWordTable(const QString &name, Row (*parse)(const QString &line))
{
    std::vector<Row> rows;
    const QStringList lines = ruleLines(name);
    for (const QString &line : lines) {
        rows.push_back(parse(line));
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row &a, const Row &b) { return a.word.size() > b.word.size(); });
    return rows;
}

} // namespace understanding
