// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardrequests.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QLatin1String ConferenceId("conferenceId");
const QLatin1String Duration("duration");
const QLatin1String Members("members");
const QLatin1String Name("name");
const QLatin1String ParticipantLimit("participantLimit");
const QLatin1String StartTime("startTime");
const QLatin1String UserId("userId");

QJsonArray memberArray(const QVector<UserInfo> &members)
{
    QJsonArray array;
    for (const UserInfo &member : members) {
        array.append(QJsonObject{{UserId, member.userId}, {Name, member.name}});
    }
    return array;
}

QString text(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

QString CardRequests::update(const ContactDetailMsg &conference)
{
    return text({{ConferenceId, conference.confId},
                 {StartTime, conference.startTime},
                 {Duration, conference.duration},
                 {ParticipantLimit, conference.participantLimit}});
}

QString CardRequests::create(const QVector<UserInfo> &members, qint64 startTime)
{
    return text({{Members, memberArray(members)}, {StartTime, startTime}});
}

QString CardRequests::invite(const QVector<UserInfo> &members)
{
    return text({{Members, memberArray(members)}});
}
