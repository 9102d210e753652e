// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QTime>

/// Maps the hours at which a conference may start to their labels.
class ConferenceHours
{
public:
    /// From midnight on.
    [[nodiscard]] static QStringList choices();
    /// The label of the hour of @p time; empty for an invalid time.
    [[nodiscard]] static QString label(const QTime &time);
    /// The full hour labelled @p label; invalid for any other text.
    [[nodiscard]] static QTime time(const QString &label);
};
