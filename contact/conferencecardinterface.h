// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <speakmate/reply.h>

#include <QObject>

/**
 * The one gateway to the contacts application. Each operation is one request that blocks the calling thread
 * until the answer is there or the time-out has passed, and gives a result code (resultcodes.h) or what the
 * ability library returned. May be called on any thread; the object itself lives until the process ends.
 *
 * It also carries the signal by which a handler hands the record of its outcome to the reply cards.
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
    /// Scheduled when @p startMsecs is positive, at once otherwise.
    int createVideoConference(const QString &params, const qint64 &startMsecs);
    int inviteVideoConference(const QString &params, const QVector<QString> &memberNames,
                              ContactInviteMemberDetail &detail);
    int inviteVideoConference(const QString &params);
    int JoinMyVideoConference(QVector<ContactDetailMsg> &conferences);
    int QueryVideoConference(const QString &params, const qint64 &queryStartMsecs,
                             QVector<ContactDetailMsg> &conferences);
    /// Any answer but "No Conference" counts as being in one, a failure too.
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
     * A card is wanted. @p actionType is a SignalActionType, @p payload the record that belongs to it, @p
     * reply the reply that the card joins; it belongs to the sender and is complete when the emission
     * returns.
     */
    void sentActionSignals(const int &actionType, const QVariant &payload, Reply *reply);

private:
    using QObject::QObject;
};
