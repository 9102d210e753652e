// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencedraft.h"

#include <QDateTime>

namespace {

QDateTime start(const ConferenceValues &values)
{
    return QDateTime(values.startDate, values.startTime);
}

} // namespace

ConferenceValues ConferenceValues::of(const ContactDetailMsg &conference)
{
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(conference.startTime);
    return {start.date(), start.time(), conference.participantLimit, conference.duration};
}

void ConferenceDraft::setReference(const ContactDetailMsg &conference)
{
    m_reference = ConferenceValues::of(conference);
}

bool ConferenceDraft::isChanged() const
{
    // toTime_t() rather than its successor, because it maps every invalid start to the same value.
    return start(m_working).toTime_t() != start(m_reference).toTime_t() ||
           m_working.duration != m_reference.duration ||
           m_working.participantLimit != m_reference.participantLimit;
}

void ConferenceDraft::applyTo(ContactDetailMsg &conference) const
{
    conference.duration = m_working.duration;
    conference.participantLimit = m_working.participantLimit;
    // An hour that a clock change repeats has two starts with the same date and time. Unless the start was
    // edited, keep the original one.
    const ConferenceValues known = ConferenceValues::of(conference);
    if (m_working.startDate != known.startDate || m_working.startTime != known.startTime) {
        conference.startTime = start(m_working).toMSecsSinceEpoch();
    }
}
