// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "text/characterset.h"
#include "text/rulefile.h"
#include "text/scan.h"

#include <algorithm>
#include <vector>

namespace understanding {

/// The rows of a rule file, each of which has a word that is not empty.
template <typename Row>
class WordTable
{
public:
    /// Reads the rule file @p name; @p parse reads one line.
    WordTable(const QString &name, Row (*parse)(const QString &line))
    {
        const QStringList lines = ruleLines(name);
        QString beginnings;
        for (const QString &line : lines) {
            m_rows.push_back(parse(line));
            beginnings += m_rows.back().word.at(0);
        }
        m_beginnings = CharacterSet(beginnings);
        // The longest words come first, so that the first hit is the longest.
        std::stable_sort(m_rows.begin(), m_rows.end(),
                         [](const Row &a, const Row &b) { return a.word.size() > b.word.size(); });
    }

    const Row &at(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    /// The row of the longest word of at least @p shortest characters that stands at @p position, -1 for
    /// none.
    int find(const QString &text, int position, int shortest = 1) const
    {
        if (m_beginnings.contains(charAt(text, position))) {
            for (int row = 0; row < static_cast<int>(m_rows.size()) && at(row).word.size() >= shortest;
                 ++row) {
                if (startsAt(text, position, at(row).word)) {
                    return row;
                }
            }
        }
        return -1;
    }

private:
    std::vector<Row> m_rows;
    CharacterSet m_beginnings{u""};
};

} // namespace understanding
