// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// The place, other than a conference, to which a sentence sends somebody; empty for none.
struct Elsewhere
{
    int start = 0;
    int length = 0;

    [[nodiscard]] bool isEmpty() const { return length == 0; }
    /// True if a name at @p position is part of the place: 办公室 in 来我办公室.
    [[nodiscard]] bool holds(int position) const
    {
        return !isEmpty() && position >= start && position <= start + length;
    }
};

/// Finds the first place in @p text to which somebody is sent: 来我办公室, 到公司, 去302. A conference does
/// not count.
Elsewhere findElsewhere(const QString &text);

} // namespace understanding
