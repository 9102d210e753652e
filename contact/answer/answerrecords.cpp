// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "answer/answerrecords.h"

#include "wire/answerwords.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVariant>

namespace {

UserInfo participantOf(const QJsonObject &object)
{
    UserInfo participant;
    participant.name = object.value(AnswerKey::Name).toString();
    participant.userId = object.value(AnswerKey::UserId).toString();
    participant.account = object.value(AnswerKey::Account).toString();
    return participant;
}

/// @p askedName is what was said, @p displayKey the key of the person's own name.
UserInfo matchOf(const QString &askedName, const QJsonObject &object, QLatin1String displayKey)
{
    return {askedName, object.value(displayKey).toString(), object.value(AnswerKey::UserId).toString(),
            object.value(AnswerKey::Account).toString()};
}

DuplicateUsers duplicatesOf(const QString &askedName, const QJsonArray &candidates)
{
    DuplicateUsers group;
    group.name = askedName;
    group.users.reserve(candidates.size());
    for (const QJsonValue &candidate : candidates) {
        group.users.append(matchOf(askedName, candidate.toObject(), AnswerKey::Name));
    }
    return group;
}

ContactDetailMsg conferenceOf(const QJsonObject &object)
{
    ContactDetailMsg conference;
    conference.title = object.value(AnswerKey::Title).toString();
    const QJsonArray participants = object.value(AnswerKey::Participants).toArray();
    conference.participants.reserve(participants.size());
    for (const QJsonValue &participant : participants) {
        conference.participants.append(participantOf(participant.toObject()));
    }
    conference.duration = object.value(AnswerKey::Duration).toInt();
    // toInt() ends at 32 bits.
    conference.startTime = object.value(AnswerKey::StartTime).toVariant().toLongLong();
    conference.confId = object.value(AnswerKey::ConferenceId).toString();
    conference.conferenceDialNumber = object.value(AnswerKey::DialNumber).toString();
    conference.participantLimit = object.value(AnswerKey::ParticipantLimit).toInt();
    conference.status = object.value(AnswerKey::Status).toString().toInt(); // a number in a text
    conference.isPayingUser = object.value(AnswerKey::IsPayingUser).toBool();
    return conference;
}

} // namespace

QVector<ContactDetailMsg> AnswerRecords::conferences(const QJsonArray &list)
{
    QVector<ContactDetailMsg> records;
    records.reserve(list.size());
    for (const QJsonValue &entry : list) {
        records.append(conferenceOf(entry.toObject()));
    }
    return records;
}

ContactInviteMemberDetail AnswerRecords::members(const QJsonArray &users)
{
    ContactInviteMemberDetail detail;
    for (const QJsonValue &entry : users) {
        const QJsonObject user = entry.toObject();
        const QString status = user.value(AnswerKey::Status).toString();
        const QString name = user.value(AnswerKey::Name).toString();
        if (status == OutcomeWord::Ok) {
            detail.normalUsers.append(matchOf(name, user, AnswerKey::RemarkName));
        } else if (status == OutcomeWord::Duplicate) {
            detail.duplicateUsers.append(duplicatesOf(name, user.value(AnswerKey::Duplicates).toArray()));
        } else if (status == OutcomeWord::NotFound) {
            detail.notExistUsers.append(name);
        }
    }
    return detail;
}
