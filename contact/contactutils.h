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
 * Builds requests to the contacts application and analyses its answers: the interface's names for what
 * request/ and answer/ do. Everything is static, stateless and callable on any thread; the instance exists
 * because the interface has one.
 *
 * Result codes are ints (resultcodes.h), 0 for success. Nothing throws.
 */
class ContactUtils : public QObject
{
    Q_OBJECT

public:
    static ContactUtils *instance();

    // Requests: request/.

    /// Whether exactly one process of the contacts application is in the process table.
    static bool contactAppIsRunning();
    /// The time-out of a request in milliseconds; longer while the application has to be started first.
    static int timeoutInit();
    static QString addbuddyParamInit(const QString &name);
    static QString deleteParamInit(const QString &confId);
    static QString joinParamInit(const QString &confId, const QString &password);
    /// Skips empty and repeated names.
    static QString inviteParamInit(const QVector<QString> &names);
    /// See RequestTimes::searchParameters().
    static QString queryParamInit(const QString &timeSlotText, qint64 &queryStartMsecs);
    /// Joins the names with an ideographic comma.
    static QString vectorToString(const QVector<QString> &names);
    /// See RequestTimes::conferenceStart().
    static bool scheduleTimeMsecsInit(const QString &timeSlotText, bool &isSchedule, qint64 &startMsecs);

    // Answers: answer/answeranalysers.h and answer/answerrecords.h. The names asked for and the time of a
    // query are accepted but not used.

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

    // The understanding service's own keys: answer/semanticreaders.h.

    static bool analyzeIsShouldEndSession(const QString &semanticJson);
    /// Overload for a semantic that is parsed already.
    static bool analyzeIsShouldEndSession(const QJsonDocument &semantic);
    static void getVoiceAnswerContext(const QString &semanticJson, QString &first, QString &second);

private:
    using QObject::QObject;
};
