// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// The durations that a conference card offers, in milliseconds, and how it calls them.
class ConferenceDurations
{
public:
    ConferenceDurations();

    /// What may be chosen, the shortest first. Who does not pay gets those below an hour.
    [[nodiscard]] QStringList choices(bool isPayingUser) const;

    /**
     * How @p duration is called. A duration that the table does not know joins it under an empty name, and
     * the empty name is the answer: the card then shows its first choice and counts that as a change.
     */
    QString label(qint64 duration);

    /// The duration that is called @p label.
    [[nodiscard]] qint64 duration(const QString &label) const;

private:
    QMap<qint64, QString> m_labels;
};
