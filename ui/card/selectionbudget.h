// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/**
 * How many more rows of one card may be selected. The card owns it; each of its rows takes one when it
 * becomes selected and gives it back when it is not any more.
 */
class SelectionBudget
{
public:
    /// So many that every row can be selected.
    static constexpr int PracticallyUnlimited = 65535;

    [[nodiscard]] int remaining() const { return m_remaining; }

    /// To be called before anything is selected; a negative number counts as 0.
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
