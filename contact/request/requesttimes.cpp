// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "request/requesttimes.h"

#include "defaultlog.h"
#include "request/requesttexts.h"
#include "request/spokentime.h"

#include <QJsonParseError>

namespace {

/// The start of a conference of which only the day was said.
QDateTime startOn(const QDate &date, const QDateTime &now)
{
    const QTime morning(9, 0);
    return date == now.date() ? LocalTime::nextFullHour(now) : LocalTime::at(date, morning);
}

} // namespace

QString RequestTimes::searchParameters(const QString &slotText, qint64 &startMsecs)
{
    const QDateTime now = QDateTime::currentDateTime();
    const SpokenTime spoken = SpokenTime::fromSlot(slotText);
    if (spoken.hasTime()) {
        startMsecs = LocalTime::msecs(spoken.exact());
    }
    // What is over today no longer matters, unless a time was named.
    const bool fromNow = !spoken.hasTime() && spoken.date() == now.date();
    const QDateTime start = fromNow ? now : LocalTime::startOfDay(spoken.date());
    if (!start.isValid() || start < LocalTime::startOfDay(now.date())) {
        qCDebug(defaultLog) << "Invalid query time . queryStartTime:" << start;
        return {};
    }
    const QDateTime end = LocalTime::startOfDay(start.date().addDays(1));
    qCDebug(defaultLog) << "*** startTime:" << start << "endTime:" << end;
    return RequestText::searchConference(startMsecs > 0 ? startMsecs : LocalTime::msecs(start),
                                         LocalTime::msecs(end));
}

bool RequestTimes::conferenceStart(const QString &slotText, bool &isSchedule, qint64 &startMsecs)
{
    const QDateTime now = QDateTime::currentDateTime();
    if (slotText.isEmpty()) {
        if (isSchedule) {
            const QDateTime start = LocalTime::nextFullHour(now);
            qCDebug(defaultLog) << "startTime" << start << "true"; // the flag, always true here
            startMsecs = LocalTime::msecs(start);
        }
        return true;
    }
    QJsonParseError error;
    const SpokenTime spoken = SpokenTime::fromSlot(slotText, &error);
    if (error.error != QJsonParseError::NoError) {
        qCWarning(defaultLog) << "response ret error.error:" << error.error;
        return false;
    }
    if (spoken.text().isEmpty()) {
        qCWarning(defaultLog) << "strDateTime is not json : " << slotText;
        return false;
    }
    const QDateTime start = spoken.hasTime() ? spoken.exact() : startOn(spoken.date(), now);
    qCDebug(defaultLog) << "startTime" << start;
    startMsecs = LocalTime::msecs(start);
    if (!start.isValid() || start <= now) {
        return false;
    }
    isSchedule = true;
    return true;
}
