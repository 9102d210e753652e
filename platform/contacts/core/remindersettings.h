// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Whether and how early the user is reminded of conferences.
struct ReminderSettings
{
    static constexpr int MinLeadMinutes = 1;
    static constexpr int MaxLeadMinutes = 120;

    bool isOn = true;
    int leadMinutes = 5;
};
