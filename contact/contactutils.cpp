// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactutils.h"

#include "answer/answeranalysers.h"
#include "answer/answerrecords.h"
#include "answer/semanticreaders.h"
#include "defaultlog.h"
#include "request/processcheck.h"
#include "request/requesttexts.h"
#include "request/requesttimeout.h"
#include "request/requesttimes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

ContactUtils *ContactUtils::instance()
{
    static ContactUtils utils;
    return &utils;
}

bool ContactUtils::contactAppIsRunning()
{
    return contactsApplicationIsRunning();
}

int ContactUtils::timeoutInit()
{
    return requestTimeout(contactsApplicationIsRunning());
}

QString ContactUtils::addbuddyParamInit(const QString &name)
{
    return RequestText::addFriend(name);
}

QString ContactUtils::deleteParamInit(const QString &confId)
{
    return RequestText::deleteConference(confId);
}

QString ContactUtils::joinParamInit(const QString &confId, const QString &password)
{
    return RequestText::joinConference(confId, password);
}

QString ContactUtils::inviteParamInit(const QVector<QString> &names)
{
    QVector<QString> spoken = names;
    spoken.removeAll(QString());
    QString text = RequestText::inviteMembersNamed(spoken);
    // Looks like the object's own debug output, without building the object again.
    qCDebug(defaultLog).noquote() << "jsonObjMember:"
                                  << QLatin1String("QJsonObject(") + text + QLatin1Char(')');
    return text;
}

QString ContactUtils::queryParamInit(const QString &timeSlotText, qint64 &queryStartMsecs)
{
    return RequestTimes::searchParameters(timeSlotText, queryStartMsecs);
}

bool ContactUtils::scheduleTimeMsecsInit(const QString &timeSlotText, bool &isSchedule, qint64 &startMsecs)
{
    return RequestTimes::conferenceStart(timeSlotText, isSchedule, startMsecs);
}

QString ContactUtils::vectorToString(const QVector<QString> &names)
{
    QStringList list;
    list.reserve(names.size());
    for (const QString &name : names) {
        list.append(name);
    }
    return list.join(QStringLiteral("、"));
}

int ContactUtils::analyzeReturnContext(const QString &answer)
{
    return AnswerAnalyser::general(answer);
}

int ContactUtils::analyzeResultContext(const QString &answer, const QVector<QString> & /*memberNames*/,
                                       const bool &isSchedule, const qint64 &startMsecs,
                                       ContactCreatedConferenceDetail &detail)
{
    return AnswerAnalyser::create(answer, isSchedule, startMsecs, detail);
}

int ContactUtils::analyzeResultContext(const QString &answer, const QVector<QString> & /*memberNames*/,
                                       ContactInviteMemberDetail &detail)
{
    return AnswerAnalyser::invite(answer, detail);
}

int ContactUtils::analyzeJoinReturnContext(const QString &answer, QVector<ContactDetailMsg> &conferences)
{
    return AnswerAnalyser::join(answer, conferences);
}

int ContactUtils::analyzeQueryResultContext(const QString &answer, const qint64 & /*queryStartMsecs*/,
                                            QVector<ContactDetailMsg> &conferences)
{
    return AnswerAnalyser::query(answer, conferences);
}

int ContactUtils::analyzeUpdateReturnContext(const QString &answer, ContactCreatedConferenceDetail &detail)
{
    return AnswerAnalyser::update(answer, detail);
}

ContactInviteMemberDetail ContactUtils::analyzeReturnUsers(const QJsonArray &users,
                                                           const QVector<QString> & /*memberNames*/)
{
    return AnswerRecords::members(users);
}

QVector<ContactDetailMsg> ContactUtils::parseContactMsg(const QJsonArray &list)
{
    return AnswerRecords::conferences(list);
}

bool ContactUtils::analyzeIsShouldEndSession(const QString &semanticJson)
{
    return SemanticReader::shouldEndSession(QJsonDocument::fromJson(semanticJson.toUtf8()));
}

bool ContactUtils::analyzeIsShouldEndSession(const QJsonDocument &semantic)
{
    return SemanticReader::shouldEndSession(semantic);
}

void ContactUtils::getVoiceAnswerContext(const QString &semanticJson, QString &first, QString &second)
{
    SemanticReader::readVoiceAnswer(QJsonDocument::fromJson(semanticJson.toUtf8()), first, second);
}
