// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "request/requesttexts.h"

#include "wire/jsontext.h"
#include "wire/requestkeys.h"

#include <QJsonObject>
#include <QSet>

namespace {

QJsonObject member(const QString &name, const QString &userId)
{
    return {{RequestKey::Name, name}, {RequestKey::UserId, userId}};
}

void appendKey(QString &json, QLatin1String key)
{
    json += QLatin1Char('"');
    json += key;
    json += QLatin1String("\":");
}

/// Calls @p take with each of @p names once, in the order of their first appearance.
template <typename Take>
void forEachOnce(const QVector<QString> &names, Take take)
{
    QSet<QString> known;
    known.reserve(names.size());
    for (const QString &name : names) {
        if (!known.contains(name)) {
            known.insert(name);
            take(name);
        }
    }
}

} // namespace

QJsonArray RequestText::membersNamed(const QVector<QString> &names)
{
    QJsonArray members;
    forEachOnce(names, [&members](const QString &name) { members.append(member(name, QString())); });
    return members;
}

QJsonArray RequestText::membersPicked(const QVector<UserInfo> &users)
{
    QJsonArray members;
    for (const UserInfo &user : users) {
        members.append(member(user.name, user.userId));
    }
    return members;
}

QString RequestText::createConference(const QJsonArray &members)
{
    return compactText({{RequestKey::Members, members}});
}

QString RequestText::createConference(const QJsonArray &members, qint64 startTime)
{
    return compactText({{RequestKey::Members, members}, {RequestKey::StartTime, startTime}});
}

QString RequestText::inviteMembers(const QJsonArray &members)
{
    return compactText({{RequestKey::Members, members}});
}

QString RequestText::inviteMembersNamed(const QVector<QString> &names)
{
    constexpr int roomForEach = 40;
    QString json;
    json.reserve(roomForEach * (names.size() + 1));
    json += QLatin1Char('{');
    appendKey(json, RequestKey::Members);
    QLatin1Char separator('[');
    forEachOnce(names, [&](const QString &name) {
        json += separator;
        separator = QLatin1Char(',');
        json += QLatin1Char('{');
        appendKey(json, RequestKey::Name);
        appendQuoted(json, name);
        json += QLatin1Char(',');
        appendKey(json, RequestKey::UserId);
        appendQuoted(json, QString());
        json += QLatin1Char('}');
    });
    json += QLatin1String(names.isEmpty() ? "[]}" : "]}");
    return json;
}

QString RequestText::joinConference(const QString &number, const QString &password)
{
    return compactText({{RequestKey::ConferenceId, number}, {RequestKey::Password, password}});
}

QString RequestText::searchConference(qint64 startTime, qint64 endTime)
{
    return compactText({{RequestKey::StartTime, startTime}, {RequestKey::EndTime, endTime}});
}

QString RequestText::deleteConference(const QString &conferenceId)
{
    return compactText({{RequestKey::ConferenceId, conferenceId}});
}

QString RequestText::updateConference(const ContactDetailMsg &conference)
{
    return compactText({{RequestKey::ConferenceId, conference.confId},
                        {RequestKey::StartTime, conference.startTime},
                        {RequestKey::Duration, conference.duration},
                        {RequestKey::ParticipantLimit, conference.participantLimit}});
}

QString RequestText::addFriend(const QString &name)
{
    QString json(QLatin1Char('{'));
    appendKey(json, RequestKey::UserId);
    appendQuoted(json, name);
    json += QLatin1Char('}');
    return json;
}
