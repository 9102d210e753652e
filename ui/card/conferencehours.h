// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QTime>

/// The hours at which a conference card lets a conference start, and how it calls them.
class ConferenceHours
{
public:
    /// From midnight on.
    [[nodiscard]] static QStringList choices();
    /// How the hour of @p time is called; empty for an invalid time.
    [[nodiscard]] static QString label(const QTime &time);
    /// The full hour that is called @p label, invalid for any other text.
    [[nodiscard]] static QTime time(const QString &label);
};
