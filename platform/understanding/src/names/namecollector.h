// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "names/namefinder.h"

namespace understanding {

/// Gathers names and cuts them out of what surrounds them. The sentence must outlive it.
class NameCollector
{
public:
    static constexpr int LongestName = 12; ///< in characters

protected:
    NameCollector(const QString &raw, const QString &text) : m_raw(raw), m_text(text) {}
    ~NameCollector() = default;
    Q_DISABLE_COPY(NameCollector)

    void addKnown(const Token &token, bool called);
    void addUnknown(int position, const QString &normal, bool called);
    void addOne(int position, int length, bool called);
    /// Marks the last name as doubtful: somebody beside it was not found.
    void doubtLast();
    /// Adds the name between @p start and @p end, without what surrounds it.
    void addChunk(int start, int end, bool mustLookLikeName, bool called);

    /// True if @p token follows the last name directly and so has to look like a name itself: 去打球 in
    /// 叫上王磊去打球.
    [[nodiscard]] bool followsName(const Token &token) const;
    /// True if somebody named before the separator at @p at was not found: 一鸣 in 参会人一鸣、芳姐.
    [[nodiscard]] bool isLostBefore(const Tokens &tokens, std::size_t at) const;

    std::vector<FoundName> m_names; // NOLINT(misc-non-private-member-variables-in-classes)
    bool m_listed = false;          ///< beside 、, where anything may stand
    int m_modifierStart = -1;       ///< of the next name, -1 for none

private:
    /// Adds people who stand in a row from @p position on.
    void addRow(int position, const QStringList &names, bool called);
    /// 邓稼先 before a comma, 佟大为 anywhere: the last character belongs to the name.
    [[nodiscard]] bool isWholeName(const QString &chunk, int end) const;

    const QString &m_raw;
    const QString &m_text;
};

} // namespace understanding
