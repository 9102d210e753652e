// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QTime>

/// The hours at which a conference card lets a conference start, and how it calls them.
class ConferenceHours
{
public:
    ConferenceHours();

    /// From midnight on.
    [[nodiscard]] QStringList choices() const;
    /// How the hour of @p time is called; empty for an invalid time.
    [[nodiscard]] QString label(const QTime &time) const;
    /// The full hour that is called @p label, invalid for any other text.
    [[nodiscard]] QTime time(const QString &label) const;

private:
    QMap<int, QString> m_labels;
};
