// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QColor>
#include <QString>

/// How a card shows a conference's state.
struct ConferenceState
{
    QString text;
    const char *icon; ///< one of CardIcons
    QColor color;     ///< of the text; the same in both themes, so that users recognise it

    /// @p status is the code of the contacts application. An unknown one counts as in progress.
    static ConferenceState of(int status);
};
