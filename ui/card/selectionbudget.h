// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/**
 * How many more rows of a card may be selected. Owned by the card; a row takes one when it is selected and
 * gives it back when it is deselected.
 */
class SelectionBudget
{
public:
    /// Enough to select every row.
    static constexpr int PracticallyUnlimited = 65535;

    [[nodiscard]] int remaining() const { return m_remaining; }

    /// Call before anything is selected. A negative number counts as 0.
    void limitTo(int selections) { m_remaining = selections > 0 ? selections : 0; }

    /// @return false when nothing is left; then nothing changes.
    [[nodiscard]] bool take()
    {
        if (m_remaining <= 0) {
            return false;
        }
        --m_remaining;
        return true;
    }

    void giveBack() { ++m_remaining; }

private:
    int m_remaining = PracticallyUnlimited;
};
