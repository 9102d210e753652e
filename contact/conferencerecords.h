// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/**
 * @file
 * Plain values that carry the ability's answers to the handlers and, inside a QVariant, to the cards. The
 * order of their members is part of the binary layout.
 */

/// One person as the contacts application knows them.
struct UserInfo
{
    QString name;       ///< the name that was asked for; for a participant, the name to show
    QString remarkName; ///< the display name; empty for a participant
    QString userId;
    QString account;
};

/// A spoken name that matched several people.
struct DuplicateUsers
{
    QString name;
    QVector<UserInfo> users; ///< the candidates, in the order of the answer
};

/// One conference as the contacts application lists it.
struct ContactDetailMsg
{
    QString title;
    QVector<UserInfo> participants;
    qint64 duration = 0;  ///< as it came on the wire; milliseconds from the bundled application
    qint64 startTime = 0; ///< milliseconds since the epoch
    QString confId;
    QString conferenceDialNumber; ///< the number to say or dial to join
    int participantLimit = 0;
    int status = 0; ///< 0 not started, 2 ended, anything else in progress
    bool isPayingUser = false;
};

/// How the spoken names matched the user's contacts.
struct ContactInviteMemberDetail
{
    QVector<DuplicateUsers> duplicateUsers;
    QVector<UserInfo> normalUsers;
    QVector<QString> notExistUsers;
    int canInviteNum = 0; ///< how many more fit; set only if a limit was exceeded
};

/// The outcome of creating a conference.
struct ContactCreatedConferenceDetail
{
    bool isSchedule = false;               ///< as requested
    qint64 scheduleTimeMsecs = 0;          ///< as requested, milliseconds since the epoch
    QVector<ContactDetailMsg> conferences; ///< the created one, or those that overlap it
    ContactInviteMemberDetail inviteDetail;
};

/// The conferences found by a query, or offered by "join my conference".
struct ContactQueryConferenceDetail
{
    QVector<ContactDetailMsg> conferences;
};

Q_DECLARE_METATYPE(ContactCreatedConferenceDetail)
Q_DECLARE_METATYPE(ContactInviteMemberDetail)
Q_DECLARE_METATYPE(ContactQueryConferenceDetail)
