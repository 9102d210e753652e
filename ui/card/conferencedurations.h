// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// Maps the durations offered by a conference card (ms) to their labels.
class ConferenceDurations
{
public:
    static constexpr qint64 Minute = Q_INT64_C(60) * 1000;
    static constexpr qint64 Hour = 60 * Minute;

    ConferenceDurations();

    /// The labels on offer, shortest first. Free accounts get only those below one hour.
    [[nodiscard]] QStringList choices(bool isPayingUser) const;

    /**
     * The label of @p duration. An unknown duration joins the table with an empty label, which is returned:
     * the card then shows its first choice and counts that as a change.
     */
    QString label(qint64 duration);

    [[nodiscard]] qint64 duration(const QString &label) const;

private:
    QMap<qint64, QString> m_labels;
};
