// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <speakmate/reply.h>

#include <QObject>

/**
 * The gateway to the contacts application. Each operation sends one request, blocks the calling thread until
 * the answer arrives or the request times out, and returns a result code (resultcodes.h) or the ability
 * library's own code. Thread-safe; the instance lives until the process ends.
 *
 * Handlers also pass their records to the reply cards through it, see sentActionSignals().
 */
class ConferenceCardInterface : public QObject
{
    Q_OBJECT

public:
    static ConferenceCardInterface *instance();

    /// @p startMsecs is in milliseconds since the epoch; @p detail receives the outcome.
    int createVideoConference(const QString &params, const QVector<QString> &memberNames,
                              const bool &isSchedule, const qint64 &startMsecs,
                              ContactCreatedConferenceDetail &detail);
    /// Books the conference if @p startMsecs is positive, starts it at once otherwise.
    int createVideoConference(const QString &params, const qint64 &startMsecs);
    int inviteVideoConference(const QString &params, const QVector<QString> &memberNames,
                              ContactInviteMemberDetail &detail);
    int inviteVideoConference(const QString &params);
    int JoinMyVideoConference(QVector<ContactDetailMsg> &conferences);
    int QueryVideoConference(const QString &params, const qint64 &queryStartMsecs,
                             QVector<ContactDetailMsg> &conferences);
    /// Any answer but "No Conference" counts as being in a meeting, even a failure.
    bool isInMeetingCheck();
    int deleteVideoConference(const QString &confId);
    int addBuddy(const QString &name);
    int closeVideoConference();
    int openConferenceList();
    int UpdateVideoConference(const QString &params);
    int JoinVideoConference(const QString &confId, const QString &password);

    /// Announces a card: see sentActionSignals().
    void noticeSentActionSignals(const int &actionType, const QVariant &payload, Reply *reply);

Q_SIGNALS:
    /**
     * Requests a card. @p actionType is a SignalActionType, @p payload its record; the card is attached to
     * @p reply, which the sender owns, before the emission returns.
     */
    void sentActionSignals(const int &actionType, const QVariant &payload, Reply *reply);

private:
    using QObject::QObject;
};
