// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QObject>

QT_BEGIN_NAMESPACE
class QJsonArray;
class QJsonDocument;
QT_END_NAMESPACE

/**
 * Builds the requests to the contacts application and reads its answers. Everything here is static and keeps
 * no state, so it may be called on any thread; the instance exists because the interface has one.
 *
 * Result codes are negative ints, see resultcodes.h; 0 is success. Nothing here throws.
 */
class ContactUtils : public QObject
{
    Q_OBJECT

public:
    static ContactUtils *instance();

    // Requests.

    /// Whether exactly one process of the contacts application is in the process table.
    static bool contactAppIsRunning();
    /// How long a request may take, in milliseconds; longer while the application has to be started first.
    static int timeoutInit();
    static QString addbuddyParamInit(const QString &name);
    static QString deleteParamInit(const QString &confId);
    static QString joinParamInit(const QString &confId, const QString &password);
    /// Leaves out empty and repeated names.
    static QString inviteParamInit(const QVector<QString> &names);
    /**
     * The range that a query's time slot asks for. @p queryStartMsecs (milliseconds since the epoch) is read
     * and written: a positive value that comes in replaces the start of the range. Empty for a day that is
     * past and for no date.
     */
    static QString queryParamInit(const QString &timeSlotText, qint64 &queryStartMsecs);
    /// The names with an ideographic comma between them.
    static QString vectorToString(const QVector<QString> &names);
    /**
     * When a conference asked for with @p timeSlotText is to start. @p startMsecs is in milliseconds since
     * the epoch.
     * @return false when the time is past or cannot be read.
     */
    static bool scheduleTimeMsecsInit(const QString &timeSlotText, bool &isSchedule, qint64 &startMsecs);

    // Answers. A record is only written where the answer's outcome carries one.

    static int analyzeReturnContext(const QString &answer);
    static int analyzeResultContext(const QString &answer, const QVector<QString> &memberNames,
                                    const bool &isSchedule, const qint64 &startMsecs,
                                    ContactCreatedConferenceDetail &detail);
    static int analyzeResultContext(const QString &answer, const QVector<QString> &memberNames,
                                    ContactInviteMemberDetail &detail);
    static int analyzeJoinReturnContext(const QString &answer, QVector<ContactDetailMsg> &conferences);
    static int analyzeQueryResultContext(const QString &answer, const qint64 &queryStartMsecs,
                                         QVector<ContactDetailMsg> &conferences);
    static int analyzeUpdateReturnContext(const QString &answer, ContactCreatedConferenceDetail &detail);
    static ContactInviteMemberDetail analyzeReturnUsers(const QJsonArray &users,
                                                        const QVector<QString> &memberNames);
    static QVector<ContactDetailMsg> parseContactMsg(const QJsonArray &list);

    // The understanding service's own keys.

    /// Whether the turn ends the dialogue; true also for a text that does not say.
    static bool analyzeIsShouldEndSession(const QString &semanticJson);
    /// The same for a text that was read already.
    static bool analyzeIsShouldEndSession(const QJsonDocument &semantic);
    /// The understanding service's answer: @p first is shown, @p second spoken. What is missing stays as it
    /// came in.
    static void getVoiceAnswerContext(const QString &semanticJson, QString &first, QString &second);

private:
    using QObject::QObject;
};
