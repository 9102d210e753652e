// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QDate>
#include <QTime>

/// What a person may change about a conference. Date and time are local; the duration is in milliseconds.
struct ConferenceValues
{
    QDate startDate;
    QTime startTime;
    int participantLimit = 0;
    qint64 duration = 0;

    static ConferenceValues of(const ContactDetailMsg &conference);
};

/// A conference being edited: the values in the controls, and those that the contacts application has.
class ConferenceDraft
{
public:
    /// Sets @p conference as the baseline that edits are compared against. Keeps the working values.
    void setReference(const ContactDetailMsg &conference);

    ConferenceValues &working() { return m_working; }

    /// Whether the working values differ. The start is compared in whole seconds.
    [[nodiscard]] bool isChanged() const;

    /// Writes the working values into @p conference.
    void applyTo(ContactDetailMsg &conference) const;

private:
    ConferenceValues m_working;
    ConferenceValues m_reference;
};
