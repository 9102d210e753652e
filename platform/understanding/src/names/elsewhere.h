// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// Where a sentence sends somebody who shall not come to a conference; empty for nowhere.
struct Elsewhere
{
    int start = 0;
    int length = 0;

    [[nodiscard]] bool isEmpty() const { return length == 0; }
    /// True for a name at @p position that is a piece of the place: 办公室 in 来我办公室.
    [[nodiscard]] bool holds(int position) const
    {
        return !isEmpty() && position >= start && position <= start + length;
    }
};

/// The first place of @p text that somebody is to come to: 来我办公室, 到公司, 去302. A conference is none.
Elsewhere findElsewhere(const QString &text);

} // namespace understanding
