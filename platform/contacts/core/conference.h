// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QVector>

constexpr qint64 MinuteMsecs = 60 * 1000;
constexpr qint64 HourMsecs = 60 * MinuteMsecs;
constexpr qint64 DayMsecs = 24 * HourMsecs;

/// Derived from the clock alone. The numbers are part of the answers.
enum class ConferenceState { NotStarted = 0, Running = 1, Ended = 2 };

/// The state of an invitation. The numbers are stored.
enum class Attendance { Invited = 0, Joined = 1, Left = 2 };

/// One person's seat in a conference.
struct Participant
{
    QString userId;
    QString account;
    QString name; ///< as the user who asks calls the person
    Attendance attendance = Attendance::Invited;
};

/// A conference. All times are in milliseconds, points in time since the epoch.
struct Conference
{
    qint64 id = 0;
    QString confId;     ///< names the conference in requests that change it
    QString dialNumber; ///< digits, what one says to join
    QString title;
    QString hostId;
    qint64 startMsecs = 0;
    qint64 durationMsecs = 0;
    int participantLimit = 0;
    QString passcode;                  ///< empty: everybody may join
    bool paid = false;                 ///< whether the host's account is a paying one
    QVector<Participant> participants; ///< without those who left

    qint64 endMsecs() const { return startMsecs + durationMsecs; }
    ConferenceState stateAt(qint64 nowMsecs) const
    {
        if (nowMsecs < startMsecs) {
            return ConferenceState::NotStarted;
        }
        return nowMsecs < endMsecs() ? ConferenceState::Running : ConferenceState::Ended;
    }
};
