// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/**
 * The times of requests, out of the understanding service's "datetime" slot (see SpokenTime). All times are
 * milliseconds since the epoch.
 */
namespace RequestTimes {

/**
 * The parameters of a search for the day in @p slotText; empty for a past day and for no date. A positive
 * @p startMsecs replaces the start of the range; a time in @p slotText is written to it first.
 */
QString searchParameters(const QString &slotText, qint64 &startMsecs);

/**
 * Reads the start of a conference from @p slotText. Without a text, only a conference that @p isSchedule
 * marks as booked gets a start: the next full hour.
 * @return false, leaving @p isSchedule alone, for a time that is past or cannot be read.
 */
bool conferenceStart(const QString &slotText, bool &isSchedule, qint64 &startMsecs);

} // namespace RequestTimes
