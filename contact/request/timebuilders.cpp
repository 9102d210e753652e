// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// How ContactUtils turns spoken times into requests.

#include "contactutils.h"
#include "request/spokentime.h"
#include "wire/jsontext.h"
#include "wire/requestkeys.h"

#include <QDebug>
#include <QJsonParseError>

namespace {

/// When a conference starts for which only a day was said.
QDateTime startOn(const QDate &date, const QDateTime &now)
{
    const QTime morning(9, 0);
    return date == now.date() ? LocalTime::nextFullHour(now) : LocalTime::at(date, morning);
}

} // namespace

QString ContactUtils::queryParamInit(const QString &timeSlotText, qint64 &queryStartMsecs)
{
    const QDateTime now = QDateTime::currentDateTime();
    const SpokenTime spoken = SpokenTime::fromSlot(timeSlotText);
    if (spoken.hasTime()) {
        queryStartMsecs = LocalTime::msecs(spoken.exact());
    }
    // What is over today is no longer of interest, unless a time was named.
    const bool fromNow = !spoken.hasTime() && spoken.date() == now.date();
    const QDateTime start = fromNow ? now : LocalTime::startOfDay(spoken.date());
    if (!start.isValid() || start < LocalTime::startOfDay(now.date())) {
        qDebug() << "Invalid query time . queryStartTime:" << start;
        return {};
    }
    const QDateTime end = LocalTime::startOfDay(start.date().addDays(1));
    qDebug() << "*** startTime:" << start << "endTime:" << end;
    return compactText(
        {{RequestKey::StartTime, queryStartMsecs > 0 ? queryStartMsecs : LocalTime::msecs(start)},
         {RequestKey::EndTime, LocalTime::msecs(end)}});
}

bool ContactUtils::scheduleTimeMsecsInit(const QString &timeSlotText, bool &isSchedule, qint64 &startMsecs)
{
    const QDateTime now = QDateTime::currentDateTime();
    if (timeSlotText.isEmpty()) {
        if (isSchedule) {
            const QDateTime start = LocalTime::nextFullHour(now);
            qDebug() << "startTime" << start << "true"; // the flag, which only true gets here
            startMsecs = LocalTime::msecs(start);
        }
        return true;
    }
    QJsonParseError error;
    const SpokenTime spoken = SpokenTime::fromSlot(timeSlotText, &error);
    if (error.error != QJsonParseError::NoError) {
        qWarning() << "response ret error.error:" << error.error;
        return false;
    }
    if (spoken.text().isEmpty()) {
        qWarning() << "strDateTime is not json : " << timeSlotText;
        return false;
    }
    const QDateTime start = spoken.hasTime() ? spoken.exact() : startOn(spoken.date(), now);
    qDebug() << "startTime" << start;
    startMsecs = LocalTime::msecs(start);
    if (!start.isValid() || start <= now) {
        return false;
    }
    isSchedule = true;
    return true;
}
